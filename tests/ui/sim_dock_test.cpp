// The picture of the simulated machine: it follows what moves, and costs nothing at rest.

#include "ui/sim_dock.h"

#include <QMainWindow>
#include <QToolButton>

#include "core/window_state.h"
#include "tests/ui/ui_test.h"
#include "ui/sim_picture.h"
#include "ui/sim_point.h"

namespace tr7 {
namespace {

class SimDockTest : public UiTest {
 protected:
  SimDockTest() {
    SimDock::AddTo(frame_, machine_);
    frame_.show();
    machine_.Open("sim");
    WaitMs(300);
  }
  const SimAxis& Shown() const { return frame_.findChildren<SimPicture*>().at(1)->Shown(); }
  bool Follows() const { return Shown() == machine_.Axes()[1]; }

  SimPort& machine_ = desktop.serial.Sim();
  QMainWindow frame_;
};

TEST_F(SimDockTest, ItFollowsAJogAndRestsWithIt) {
  machine_.Write("0JR00200\r\n");
  EXPECT_TRUE(Until([this] { return Shown().moving && Shown().pulses > 100; }));
  machine_.Write("0SP\r\n");
  EXPECT_TRUE(Until([this] { return !Shown().moving; }));
  EXPECT_TRUE(Follows());
  const std::uint64_t sleeps = desktop.pump.sleeps;
  WaitMs(300);
  EXPECT_LE(desktop.pump.sleeps - sleeps, 8u);
}

TEST_F(SimDockTest, AHandMovesASlideWhoseServoIsOff) {
  QToolButton* away = frame_.findChildren<QToolButton*>("push2+").at(0);
  EXPECT_FALSE(away->isEnabled());
  machine_.Write("0CM10200\r\n");
  EXPECT_TRUE(Until([away] { return away->isEnabled(); }));
  QTest::mouseClick(away, Qt::LeftButton);
  EXPECT_EQ(machine_.Axes()[1].pulses, 50);
  EXPECT_TRUE(Follows());
}

TEST_F(SimDockTest, ThePowerTakesTheMotorsHoldAndHoming) {
  machine_.Write("0CM10200\r\n");
  EXPECT_TRUE(Until([this] { return !machine_.Axes()[1].servo_on; }));
  QTest::mouseClick(frame_.findChildren<QToolButton*>("power").at(0), Qt::LeftButton);
  EXPECT_TRUE(machine_.Axes()[1].servo_on && Follows());
}

TEST_F(SimDockTest, ItComesBackWhereItStood) {
  QMainWindow next;
  for (QMainWindow* window : {&frame_, &next}) {
    window->setCentralWidget(new QWidget);
    window->resize(900, 700);
  }
  auto* dock = frame_.findChild<SimDock*>();
  frame_.addDockWidget(Qt::TopDockWidgetArea, dock);
  frame_.resizeDocks({dock}, {240}, Qt::Vertical);
  Settle();
  dock->hide();
  RememberWindows();
  SimDock::AddTo(next, machine_);
  next.show();
  auto* again = next.findChild<SimDock*>();
  EXPECT_TRUE(again->isHidden() && next.dockWidgetArea(again) == Qt::TopDockWidgetArea);
  again->show();
  Settle();
  EXPECT_EQ(again->height(), 240);
}

TEST_F(SimDockTest, AFloatingOneComesBackAfterTheFrame) {
  QMainWindow next;
  auto* dock = frame_.findChild<SimDock*>();
  dock->setFloating(true);
  dock->move(60, 70);
  Settle();
  RememberWindows();
  SimDock::AddTo(next, machine_);
  auto* again = next.findChild<SimDock*>();
  EXPECT_TRUE(again->isHidden()) << "there before the frame, it would lie behind it";
  next.show();
  EXPECT_TRUE(Until([again] { return again->isVisible(); }));
  EXPECT_EQ(again->geometry(), dock->geometry());
}

TEST_F(SimDockTest, AHandSwitchesAnInput) {
  auto* input = frame_.findChildren<SimPoint*>("input3").at(0);
  QTest::mouseClick(input, Qt::LeftButton);
  EXPECT_TRUE(machine_.Points().inputs[2] && input->isChecked());
}

}  // namespace
}  // namespace tr7
