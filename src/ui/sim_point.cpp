#include "ui/sim_point.h"

#include <QPainter>
#include <string>

#include "state/text.h"
#include "ui/binding.h"
#include "ui/look.h"

namespace tr7 {
namespace {

constexpr int kSwitchTip = 7142, kOnTip = 7143, kOffTip = 7144;

}  // namespace

SimPoint::SimPoint(Kind kind, int number, QWidget* parent)
    : QAbstractButton(parent), kind_(kind), number_(number) {
  const bool input = kind == Kind::Input;
  setObjectName((input ? QStringLiteral("input%1") : QStringLiteral("output%1")).arg(number));
  setText(QString::number(number));
  setCheckable(true);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  // A click leaves the focus where it is; what is no switch takes none.
  setFocusPolicy(input ? Qt::TabFocus : Qt::NoFocus);
  Tell();
}

void SimPoint::Show(bool on) {
  if (on == isChecked()) return;
  setChecked(on);
  Tell();
}

void SimPoint::nextCheckState() {
  if (kind_ == Kind::Input) emit switched(!isChecked());
}

void SimPoint::Tell() {
  const std::string number = std::to_string(number_);
  const MsgId tip = kind_ == Kind::Input ? MsgId(kSwitchTip)
                    : isChecked()        ? MsgId(kOnTip)
                                         : MsgId(kOffTip);
  setToolTip(Q(Text(tip, number)));
  setAccessibleName(toolTip());
}

QSize SimPoint::sizeHint() const {
  const int side = fontMetrics().horizontalAdvance(QStringLiteral("88")) + 8;
  return {side, side};
}

void SimPoint::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool on = isChecked();
  const QRectF field = QRectF(rect()).adjusted(1, 1, -1, -1);
  painter.setPen(
      QPen(hasFocus() ? look::Colours().text : look::Colours().faint_text, hasFocus() ? 2 : 1));
  painter.setBrush(on ? look::Colours().at_work : look::Colours().base);
  if (kind_ == Kind::Input) {
    painter.drawRoundedRect(field, 3, 3);
  } else {
    painter.drawEllipse(field);
  }
  QFont font = painter.font();
  font.setBold(on);
  painter.setFont(font);
  painter.setPen(on ? look::Colours().base : look::Colours().text);
  painter.drawText(rect(), Qt::AlignCenter, text());
}

}  // namespace tr7
