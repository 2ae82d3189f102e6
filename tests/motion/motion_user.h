#pragma once

#include "motion/motion_now.h"
#include "tests/support/flow_test.h"

namespace tr7 {

/// A hand on the move and the teaching tab, and an eye on the axes.
class MotionTest : public FlowTest {
 protected:
  explicit MotionTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful())
      : FlowTest(Homed(setup)) {}
  static qvr7sim::Setup Homed(qvr7sim::Setup setup) {
    setup.homed = true;
    return setup;
  }

  void SetUp() override {
    StartOnline();
    AppState.HomeDone = True;
    AppState.DispMmUnit = False;
    ReadRange(1, 5);
    frmPosi.flgdData.SelectCell(2, 1);
    ShowTab(2);
    Forget();
  }

  static void ShowTab(int tab) { ClickTab(frmPosi.SSTabCommand(), tab); }

  void StartTeaching() {
    frmPosi.Teach.cmdJOGST.Press();
    ASSERT_TRUE(AppState.TeachingNow) << forms.LastBox();
    pump.RunFor(400'000);
    Forget();
  }

  /// Holds a jog button for this long.
  void Jog(int index, std::int64_t us) {
    pump.After(us, [index] { frmPosi.Teach.cmdJOG[index].LetGo(); });
    frmPosi.Teach.cmdJOG[index].Hold();
    while (HoldButton::Held()) pump.Run();
  }

  bool Moves() { return port.Ct().AnyMoving(pump.NowUs()); }
  int Pulses(int axis) { return port.Ct().Axis(axis, pump.NowUs()).pulses; }

  /// The lines sent but for the polls.
  std::string Acts() const {
    std::string acts;
    for (const std::string& line : Lines()) {
      if (!line.starts_with("0RA") && !line.starts_with("0RC")) acts += line + " ";
    }
    return acts;
  }

  void TearDown() override {
    pump.RunFor(3'000'000);
    EXPECT_FALSE(Moves()) << "an axis runs on";
    EXPECT_EQ(MotionNow.Kind, Motion::None);
    if (AppState.TeachingNow) frmPosi.Teach.cmdJOGend.Press();
    forms.boxes.clear();
    FlowTest::TearDown();
  }
};

}  // namespace tr7
