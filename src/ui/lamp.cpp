#include "ui/lamp.h"

#include <QPainter>
#include <QRadialGradient>

#include "ui/look.h"

namespace tr7 {

void Lamp::SetLit(bool lit) {
  if (lit_ == lit) return;
  lit_ = lit;
  update();
}

void Lamp::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal side = qMin(width(), height()) - 2;
  const QRectF disc((width() - side) / 2, (height() - side) / 2, side, side);
  const QColor body = lit_ ? colour_ : look::Colours().lamp_off;
  QRadialGradient light(disc.center() - QPointF(side / 6, side / 6), side / 1.6);
  light.setColorAt(0, lit_ ? body.lighter(165) : body.lighter(112));
  light.setColorAt(1, body);
  painter.setPen(QPen(lit_ ? colour_.darker(150) : look::Colours().faint_text, 1));
  painter.setBrush(light);
  painter.drawEllipse(disc);
}

}  // namespace tr7
