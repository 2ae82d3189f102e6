#include "ui/sim_dock.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QGridLayout>
#include <QMainWindow>
#include <QToolButton>

#include "state/text.h"
#include "ui/binding.h"
#include "ui/sim_picture.h"

namespace tr7 {
namespace {

constexpr int kTitle = 6960, kPushHome = 6965, kPushAway = 6966, kServoHolds = 6967, kAxis1 = 220;
constexpr int kLookEveryMs = 33;
constexpr int kPushPulses = 50;
constexpr int kButtonWidth = 24;

}  // namespace

void SimDock::AddTo(QMainWindow& frame, SimPort& machine) {
  auto* dock = new SimDock(frame, machine);
  frame.addDockWidget(Qt::BottomDockWidgetArea, dock);
  // Not in a menu: those are off while a flow or a teaching session runs.
  auto* button = new QToolButton(&frame);
  button->setDefaultAction(dock->toggleViewAction());
  button->setFocusPolicy(Qt::NoFocus);
  if (QWidget* top = frame.findChild<QWidget*>("areaTop")) top->layout()->addWidget(button);
}

SimDock::SimDock(QMainWindow& frame, SimPort& machine)
    : QDockWidget(Q(Text(kTitle)), &frame), machine_(machine) {
  setObjectName("areaSimMachine");
  setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
  setWidget(MakeAxes());
  next_look_.setSingleShot(true);
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   this, &SimDock::Look);
}

QWidget* SimDock::MakeAxes() {
  auto* axes = new QWidget;
  auto* grid = new QGridLayout(axes);
  grid->setContentsMargins(10, 0, 8, 4);
  grid->setVerticalSpacing(0);
  grid->setHorizontalSpacing(2);
  grid->setColumnStretch(0, 1);
  for (int axis = 0; axis < kAxes; ++axis) {
    Row& row = rows_[axis];
    row.picture = new SimPicture(Q(Text(MsgId::At(kAxis1, axis))));
    row.picture->pushed = [this, axis](int pulses) { Push(axis, pulses); };
    row.push = {MakePushButton(axis, -1), MakePushButton(axis, 1)};
    grid->addWidget(row.picture, axis, 0);
    for (int i = 0; i < 2; ++i) grid->addWidget(row.push[i], axis, 1 + i);
  }
  return axes;
}

QToolButton* SimDock::MakePushButton(int axis, int direction) {
  auto* button = new QToolButton;
  button->setObjectName(QStringLiteral("push%1%2").arg(axis + 1).arg(direction < 0 ? '-' : '+'));
  button->setArrowType(direction < 0 ? Qt::LeftArrow : Qt::RightArrow);
  button->setAutoRepeat(true);
  button->setFixedSize(kButtonWidth, rows_[axis].picture->sizeHint().height());
  button->setEnabled(false);
  button->setFocusPolicy(Qt::TabFocus);  // a click leaves the focus where the jog's keys are
  QObject::connect(button, &QToolButton::clicked, this,
                   [this, axis, direction] { Push(axis, direction * kPushPulses); });
  return button;
}

void SimDock::Show(const Row& row, const SimAxis& axis) {
  row.picture->Show(axis);
  const bool free = axis.in_use && !axis.servo_on;
  for (int i = 0; i < 2; ++i) {
    row.push[i]->setEnabled(free);
    const MsgId tip = i == 0 ? MsgId(kPushHome) : MsgId(kPushAway);
    row.push[i]->setToolTip(Q(Text(free ? tip : MsgId(kServoHolds))));
  }
}

void SimDock::Push(int axis, int pulses) {
  machine_.Push(axis, pulses);
  Show(rows_[axis], machine_.Axes()[axis]);
}

void SimDock::Look() {
  if (next_look_.isActive() || !isVisible()) return;
  const AxisArray<SimAxis> axes = machine_.Axes();
  bool moves = false;
  for (int i = 0; i < kAxes; ++i) {
    if (axes[i] != rows_[i].picture->Shown()) Show(rows_[i], axes[i]);
    moves = moves || axes[i].moving;
  }
  if (moves) next_look_.start(kLookEveryMs);
}

}  // namespace tr7
