#include "ui/sim_picture.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "state/text.h"
#include "ui/binding.h"
#include "ui/look.h"

namespace tr7 {
namespace {

constexpr int kServoOn = 6961, kServoOff = 6962, kNotInUse = 6963, kMoving = 6964;
constexpr int kHomed = 5276, kNotHomed = 5277;

constexpr int kGap = 8, kSlideWidth = 14, kSlideHeight = 16;

QString Mm(const SimAxis& axis, int pulses, int decimals) {
  if (axis.pulses_per_mm <= 0) return QStringLiteral("-");
  return QString::number(pulses / axis.pulses_per_mm, 'f', decimals);
}

// The columns, as wide as the widest text that stands there.

int WidthOf(const QFontMetrics& font, std::initializer_list<QString> texts) {
  int width = 0;
  for (const QString& text : texts) width = std::max(width, font.horizontalAdvance(text));
  return width + kGap;
}
int NameWidth(const QFontMetrics& font) { return WidthOf(font, {QStringLiteral("AXIS0")}); }
int EndWidth(const QFontMetrics& font) { return WidthOf(font, {QStringLiteral("0000 mm")}); }
int PlaceWidth(const QFontMetrics& font) {
  return WidthOf(font, {QStringLiteral("-0000.000 mm (-00000 pls)")});
}
int ServoWidth(const QFontMetrics& font) {
  return WidthOf(font, {Q(Text(kServoOn)), Q(Text(kServoOff)), Q(Text(kNotInUse))});
}
int HomeWidth(const QFontMetrics& font) {
  return WidthOf(font, {Q(Text(kHomed)), Q(Text(kNotHomed)), Q(Text(kMoving))});
}
int WordsWidth(const QFontMetrics& font) {
  return PlaceWidth(font) + ServoWidth(font) + HomeWidth(font);
}

}  // namespace

SimPicture::SimPicture(const QString& name, QWidget* parent) : QWidget(parent), name_(name) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAccessibleName(name);
}

void SimPicture::Show(const SimAxis& axis) {
  if (axis == axis_) return;
  if (axis.pulses != axis_.pulses) direction_ = axis.pulses > axis_.pulses ? 1 : -1;
  axis_ = axis;
  setCursor(!axis.in_use || axis.servo_on ? Qt::ArrowCursor : Qt::SizeHorCursor);
  update();
}

QSize SimPicture::sizeHint() const {
  constexpr int kShortestStroke = 160;
  const QFontMetrics font = fontMetrics();
  return {NameWidth(font) + 2 * EndWidth(font) + kShortestStroke + WordsWidth(font),
          std::max(font.height(), kSlideHeight) + 2};
}

/// The way of the slide's middle.
QRectF SimPicture::Stroke() const {
  const QFontMetrics font = fontMetrics();
  const qreal left = NameWidth(font) + EndWidth(font) + kSlideWidth;
  const qreal right = width() - WordsWidth(font) - EndWidth(font) - kSlideWidth;
  return {left, height() / 2.0 - 2, std::max(right - left, 1.0), 4};
}

qreal SimPicture::XOf(int pulses) const {
  const QRectF stroke = Stroke();
  if (axis_.max_pulses <= 0) return stroke.left();
  const qreal part = static_cast<qreal>(pulses) / axis_.max_pulses;
  // A slide beyond an end of its stroke hangs over it a little.
  return stroke.left() + std::clamp(part, -0.02, 1.02) * stroke.width();
}

QRectF SimPicture::Slide() const {
  return {XOf(axis_.pulses) - kSlideWidth / 2.0, (height() - kSlideHeight) / 2.0, kSlideWidth,
          kSlideHeight};
}

void SimPicture::DrawStroke(QPainter& painter) const {
  const QRectF stroke = Stroke();
  const int end_width = EndWidth(fontMetrics());
  painter.setPen(palette().color(QPalette::WindowText));
  const QRectF low(stroke.left() - kSlideWidth - end_width, 0, end_width, height());
  const QRectF high(stroke.right() + kSlideWidth, 0, end_width, height());
  painter.drawText(low, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("0"));
  painter.drawText(high, Qt::AlignLeft | Qt::AlignVCenter,
                   Mm(axis_, axis_.max_pulses, 0) + QStringLiteral(" mm"));
  painter.setPen(QPen(look::Colours().faint_text, 1));
  painter.setBrush(palette().brush(QPalette::Base));
  painter.drawRect(stroke);
  for (const qreal end : {stroke.left(), stroke.right()}) {
    painter.drawLine(QPointF(end, stroke.top() - 5), QPointF(end, stroke.bottom() + 5));
  }
  // Filled while the servo holds it; a free one is hollow.
  painter.setPen(QPen(look::Colours().selection.darker(140), 1.5));
  painter.setBrush(axis_.servo_on ? QBrush(look::Colours().selection)
                                  : palette().brush(QPalette::Base));
  painter.drawRoundedRect(Slide(), 3, 3);
}

void SimPicture::DrawArrow(QPainter& painter) const {
  constexpr qreal kLength = 8;
  const QRectF slide = Slide();
  const qreal from = direction_ > 0 ? slide.right() + 3 : slide.left() - 3;
  QPainterPath arrow(QPointF(from, slide.center().y() - 6));
  arrow.lineTo(from + direction_ * kLength, slide.center().y());
  arrow.lineTo(from, slide.center().y() + 6);
  arrow.closeSubpath();
  painter.fillPath(arrow, palette().color(QPalette::WindowText));
}

void SimPicture::DrawWords(QPainter& painter) const {
  const QFontMetrics font = fontMetrics();
  qreal left = width() - WordsWidth(font);
  const auto word = [&](int column, const QString& text, Qt::Alignment side) {
    painter.drawText(QRectF(left, 0, column - kGap, height()), int(side | Qt::AlignVCenter), text);
    left += column;
  };
  const QString place = QStringLiteral("%1 mm (%2 pls)").arg(Mm(axis_, axis_.pulses, 3));
  word(PlaceWidth(font), place.arg(axis_.pulses), Qt::AlignRight);
  word(ServoWidth(font), Q(Text(axis_.servo_on ? MsgId(kServoOn) : MsgId(kServoOff))),
       Qt::AlignLeft);
  const MsgId state = axis_.moving  ? MsgId(kMoving)
                      : axis_.homed ? MsgId(kHomed)
                                    : MsgId(kNotHomed);
  word(HomeWidth(font), Q(Text(state)), Qt::AlignLeft);
}

void SimPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(
      palette().color(axis_.in_use ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(QRectF(0, 0, width(), height()), Qt::AlignLeft | Qt::AlignVCenter,
                   axis_.in_use ? name_ : name_ + "  " + Q(Text(kNotInUse)));
  if (!axis_.in_use) return;
  DrawStroke(painter);
  if (axis_.moving && direction_ != 0) DrawArrow(painter);
  painter.setPen(palette().color(QPalette::WindowText));
  DrawWords(painter);
}

void SimPicture::mousePressEvent(QMouseEvent* event) {
  const bool free = axis_.in_use && !axis_.servo_on;
  held_ = free && event->button() == Qt::LeftButton &&
          Slide().adjusted(-4, -4, 4, 4).contains(event->position());
}

void SimPicture::mouseMoveEvent(QMouseEvent* event) {
  if (!held_ || !pushed) return;
  const QRectF stroke = Stroke();
  const qreal part = (event->position().x() - stroke.left()) / stroke.width();
  const int wanted = static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * axis_.max_pulses));
  if (wanted != axis_.pulses) pushed(wanted - axis_.pulses);
}

void SimPicture::mouseReleaseEvent(QMouseEvent*) { held_ = false; }

}  // namespace tr7
