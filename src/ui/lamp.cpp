#include "ui/lamp.h"

#include <QPainter>

#include "ui/look.h"

namespace tr7 {
namespace {

// Every lamp is drawn on a field of 14 by 14.
constexpr qreal kField = 14;

QColor ColourOf(Lamp::Light light) {
  const look::Palette& colours = look::Colours();
  if (light == Lamp::Light::Good) return colours.good;
  return light == Lamp::Light::Alarm ? colours.alarm : colours.caution;
}

void DrawLetter(QPainter& painter, QChar letter) {
  QFont font = painter.font();
  font.setPixelSize(11);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(QRectF(0, 0, kField, kField), Qt::AlignCenter, letter);
}

/// A check, an arrow head, or a letter.
void DrawSign(QPainter& painter, Lamp::Light light) {
  const QColor ink = look::Colours().base;
  painter.setPen(QPen(ink, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  switch (light) {
    case Lamp::Light::Good:
      painter.drawPolyline(QPolygonF({{4, 7.2}, {6.2, 9.5}, {10, 4.7}}));
      break;
    case Lamp::Light::Moving:
      painter.setPen(Qt::NoPen);
      painter.setBrush(ink);
      painter.drawPolygon(QPolygonF({{5, 3.6}, {11, 7}, {5, 10.4}}));
      break;
    case Lamp::Light::Unknown:
      DrawLetter(painter, '?');
      break;
    case Lamp::Light::Alarm:
      DrawLetter(painter, '!');
      break;
  }
}

}  // namespace

void Lamp::SetLit(bool lit) {
  if (lit_ == lit) return;
  lit_ = lit;
  update();
}

void Lamp::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal side = qMin(width(), height()) - 2;
  painter.translate((width() - side) / 2, (height() - side) / 2);
  painter.scale(side / kField, side / kField);
  const QColor ink = lit_ ? ColourOf(light_) : look::Colours().faint_text;
  painter.setPen(QPen(ink, 1.5));
  painter.setBrush(lit_ ? QBrush(ink) : QBrush(Qt::NoBrush));
  painter.drawEllipse(QRectF(0.75, 0.75, kField - 1.5, kField - 1.5));
  if (lit_) DrawSign(painter, light_);
}

}  // namespace tr7
