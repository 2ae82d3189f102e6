#include "ui/lamp.h"

#include <QPainter>
#include <QRadialGradient>

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
  const QColor body = lit_ ? colour_ : QColor(0xc9, 0xd1, 0xd9);
  QRadialGradient light(disc.center() - QPointF(side / 6, side / 6), side / 1.6);
  light.setColorAt(0, lit_ ? body.lighter(165) : body.lighter(112));
  light.setColorAt(1, body);
  painter.setPen(QPen(lit_ ? colour_.darker(150) : QColor(0x9a, 0xa7, 0xb3), 1));
  painter.setBrush(light);
  painter.drawEllipse(disc);
}

}  // namespace tr7
