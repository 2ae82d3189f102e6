#include "ui/sim_dock.h"

#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/doors.h"
#include "state/text.h"
#include "ui/binding.h"
#include "ui/help_key.h"
#include "ui/sim_picture.h"
#include "ui/sim_point.h"
#include "ui/tip_text.h"

namespace tr7 {
namespace {

constexpr int kTitle = 6960, kMenuEntry = 7220, kPushHome = 6965, kPushAway = 6966,
              kServoHolds = 6967, kAxis1 = 220;
constexpr int kToggleTip = 8905, kFloatTip = 7217, kHideTip = 7218;
constexpr const char* kKey = "Ctrl+Shift+M";
constexpr int kPower = 6968, kPowerTip = 6969;
constexpr int kInputs = 7140, kOutputs = 7141;
constexpr int kLookEveryMs = 33;
constexpr int kPushPulses = 50;
constexpr int kButtonWidth = 24;
constexpr int kTitleGap = 4;

}  // namespace

void SimDock::AddTo(QMainWindow& frame, SimPort& machine) {
  auto* dock = new SimDock(frame, machine);
  dock->place_.Take();
  dock->AddSwitches(frame);
}

SimDock::SimDock(QMainWindow& frame, SimPort& machine)
    : QDockWidget(Q(Text(kTitle)), &frame), machine_(machine), place_(frame, *this, "SimMachine") {
  setObjectName("areaSimMachine");
  setProperty(kHelpPageProperty, "simulator");
  setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
  NameTitleButtons();
  setWidget(MakeMachine());
  next_look_.setSingleShot(true);
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   this, &SimDock::Look);
}

void SimDock::AddSwitches(QMainWindow& frame) {
  QAction* toggle = toggleViewAction();
  toggle->setIconText(windowTitle());  // on the button; the entry names the key as well
  toggle->setText(Q(Text(kMenuEntry)) + '\t' + kKey);
  toggle->setToolTip(TipText(Text(kToggleTip)));
  // Beside the menu: that is off while a flow or a teaching session runs.
  auto* button = new QToolButton(&frame);
  button->setDefaultAction(toggle);
  button->setFocusPolicy(Qt::TabFocus);
  if (QWidget* top = frame.findChild<QWidget*>("areaTop")) top->layout()->addWidget(button);
  if (auto* views = frame.findChild<QMenu*>("mnuView")) {
    views->addSeparator();
    views->addAction(toggle);
  }
  auto* key = new QShortcut(QKeySequence(kKey), &frame);
  QObject::connect(key, &QShortcut::activated, this, &SimDock::TurnTo);
}

/// The toolkit's buttons beside the title are pictures alone.
void SimDock::NameTitleButtons() {
  const std::pair<const char*, MsgId> names[] = {{"qt_dockwidget_floatbutton", MsgId(kFloatTip)},
                                                 {"qt_dockwidget_closebutton", MsgId(kHideTip)}};
  for (const auto& [name, tip] : names) {
    auto* button = findChild<QAbstractButton*>(name);
    if (!button) continue;
    button->setToolTip(TipText(Text(tip)));
    button->setAccessibleName(button->toolTip());
  }
}

QWidget* SimDock::FirstControl() const {
  for (QAbstractButton* button : widget()->findChildren<QAbstractButton*>()) {
    if (button->isEnabled() && (button->focusPolicy() & Qt::TabFocus)) return button;
  }
  return nullptr;
}

/// The editor of a cell ends as it is left, its table stays.
static QWidget* Lasting(QWidget* focus) {
  QWidget* around = focus ? focus->parentWidget() : nullptr;
  QWidget* table = around ? around->parentWidget() : nullptr;
  return qobject_cast<QAbstractItemView*>(table) ? table : focus;
}

/// The Tab key stays inside of a view, so a key of its own leads here, and back.
void SimDock::TurnTo() {
  QWidget* at = QApplication::focusWidget();
  const bool here = at && isAncestorOf(at);
  if (!here) {
    before_ = Lasting(at);
    show();
  }
  QWidget* to = here ? before_.data() : FirstControl();
  if (!to) return;
  to->activateWindow();  // the dock may float
  to->setFocus(Qt::ShortcutFocusReason);
}

QWidget* SimDock::MakeMachine() {
  auto* machine = new QWidget;
  auto* column = new QVBoxLayout(machine);
  column->setContentsMargins(10, 0, 8, 4);
  column->setSpacing(2);
  column->addLayout(MakeAxes());
  column->addLayout(MakePoints());
  return machine;
}

/// In two rows: one of all would be wider than a small screen.
QLayout* SimDock::MakePoints() {
  auto* grid = new QGridLayout;
  grid->setSpacing(2);
  const auto add = [grid](int row, auto& points, SimPoint::Kind kind, MsgId name) {
    auto* title = new QLabel(Q(Text(name)));
    title->setContentsMargins(0, 0, kTitleGap, 0);
    grid->addWidget(title, row, 0);
    for (std::size_t i = 0; i < points.size(); ++i) {
      points[i] = new SimPoint(kind, static_cast<int>(i) + 1);
      grid->addWidget(points[i], row, static_cast<int>(i) + 1);
    }
  };
  add(0, inputs_, SimPoint::Kind::Input, kInputs);
  add(1, outputs_, SimPoint::Kind::Output, kOutputs);
  const int beyond = std::max(kSimInputs, kSimOutputs) + 1;
  grid->setColumnStretch(beyond, 1);
  grid->addWidget(MakePowerButton(), 0, beyond + 1, 2, 1);
  for (int n = 1; n <= kSimInputs; ++n) {
    QObject::connect(inputs_.at(static_cast<std::size_t>(n) - 1), &SimPoint::switched, this,
                     [this, n](bool on) {
                       machine_.SetInput(n, on);
                       ShowPoints();
                     });
  }
  return grid;
}

QToolButton* SimDock::MakePowerButton() {
  auto* button = new QToolButton;
  button->setObjectName("power");
  button->setText(Q(Text(kPower)));
  button->setToolTip(Q(Text(kPowerTip)));
  button->setFocusPolicy(Qt::TabFocus);
  QObject::connect(button, &QToolButton::clicked, this, [this] {
    machine_.PowerCycle();
    Look();
  });
  return button;
}

QGridLayout* SimDock::MakeAxes() {
  auto* grid = new QGridLayout;
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
  return grid;
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
    row.push[i]->setAccessibleName(row.push[i]->toolTip());
  }
}

void SimDock::Push(int axis, int pulses) {
  machine_.Push(axis, pulses);
  Show(rows_[axis], machine_.Axes()[axis]);
}

void SimDock::ShowPoints() {
  const SimPoints points = machine_.Points();
  for (std::size_t i = 0; i < inputs_.size(); ++i) inputs_[i]->Show(points.inputs[i]);
  for (std::size_t i = 0; i < outputs_.size(); ++i) outputs_[i]->Show(points.outputs[i]);
}

/// At once while an axis moves; a program that waits, or an input that a script switches, wakes
/// nobody before its time.
void SimDock::LookAgain(bool moves) {
  const auto next = machine_.NextChangeUs();
  if (!moves && !next) return next_look_.stop();
  constexpr std::int64_t kLongestMs = 3'600'000;
  const std::int64_t ms = moves ? 0 : (*next - doors.pump->NowUs()) / 1000 + 1;
  next_look_.start(static_cast<int>(std::clamp<std::int64_t>(ms, kLookEveryMs, kLongestMs)));
}

void SimDock::Look() {
  if (!isVisible() || (next_look_.isActive() && next_look_.interval() == kLookEveryMs)) return;
  const AxisArray<SimAxis> axes = machine_.Axes();
  bool moves = false;
  for (int i = 0; i < kAxes; ++i) {
    if (axes[i] != rows_[i].picture->Shown()) Show(rows_[i], axes[i]);
    moves = moves || axes[i].moving;
  }
  ShowPoints();
  LookAgain(moves);
}

}  // namespace tr7
