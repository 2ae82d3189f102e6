// Jog and inching: what goes out for a hand on a button, and that nothing runs on without it.

#include "forms/frm_main.h"
#include "motion/inching.h"
#include "motion/motion_log.h"
#include "motion/present_pos.h"
#include "tests/motion/motion_user.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

class JogTest : public MotionTest {
 protected:
  void SetUp() override {
    MotionTest::SetUp();
    StartTeaching();
  }
};

TEST_F(JogTest, EveryButtonRunsForAsLongAsItIsHeld) {
  const struct {
    int index, percent;
    const char* start;
  } rows[] = {{1, 10, "0JR12000"}, {1, 90, "0JR92000"}, {3, 100, "0JR00200"}, {0, 50, "0JR51000"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.start);
    frmPosi.Teach.sldrJogVEL.Set(row.percent);
    port.sent.clear();
    const int before = Pulses(row.index / 2 + 1);
    Jog(row.index, 700'000);
    EXPECT_EQ(Acts(), std::string(row.start) + " 0SP ");
    EXPECT_FALSE(Moves());
    const int way = Pulses(row.index / 2 + 1) - before;
    EXPECT_GT(row.index % 2 == 1 ? way : -way, 0);
    EXPECT_EQ(frmPosi.Readout.lblPosi[row.index / 2].Caption,
              std::to_string(Pulses(row.index / 2 + 1)));
    pump.RunFor(400'000);
  }
  EXPECT_GE(MotionLog.size(), 8u);
}

/// The release falls on every moment of a press.
TEST_F(JogTest, AReleaseAtAnyMomentStopsTheAxis) {
  for (std::int64_t at_us = 0; at_us < 120'000; at_us += 1'500) {
    SCOPED_TRACE(at_us);
    port.sent.clear();
    pump.RunFor(400'000);
    Jog(1, at_us);
    EXPECT_FALSE(Moves());
    const std::string acts = Acts();
    EXPECT_TRUE(acts.empty() || acts == "0JR12000 0SP ") << acts;
    EXPECT_TRUE(frmPosi.Teach.cmdJOG[1].Enabled);
    EXPECT_FALSE(frmPosi.Teach.JogPending || frmPosi.Teach.JogRunning);
  }
}

/// A fault at the start, at the stop, or at what is asked around them.
TEST_F(JogTest, NoFaultLeavesAnAxisRunning) {
  for (const char* prefix : {"0JR", "0SP", "0RA", "0RC"}) {
    for (const FaultKind kind :
         {FaultKind::kSilence, FaultKind::kDeaf, FaultKind::kDelay, FaultKind::kLostByte,
          FaultKind::kWrongPrefix, FaultKind::kWrongLength, FaultKind::kErrorReply,
          FaultKind::kDoubled, FaultKind::kExtraByte}) {
      for (const std::int64_t held_us : {15'000, 30'000, 600'000}) {
        SCOPED_TRACE(std::string(prefix) + " " + std::string(qvr7sim::FaultName(kind)) + " " +
                     std::to_string(held_us));
        Spoil(kind, prefix);
        Jog(1, held_us);
        pump.RunFor(6'000'000);
        EXPECT_FALSE(Moves()) << Acts();
        EXPECT_EQ(MotionNow.Kind, Motion::None);
        port.Ct().ClearFaults();
        frmPosi.Teach.cmdJOGend.Press();
        if (AppState.AlarmOn) frmMain.cmdReset.Press();
        if (AppState.Offline) frmMain.mnuSettingOnline.Press();
        AppState.HomeDone = True;
        ShowTab(2);
        StartTeaching();
      }
    }
  }
}

TEST_F(JogTest, AStopThatNobodyAnswersIsSentOverANewConnectionAndThenTold) {
  Spoil(FaultKind::kSilence, "0SP", 0);
  Jog(1, 500'000);
  EXPECT_EQ(Boxes(), Texts{Text(6540)});
  EXPECT_EQ(Acts(), "0JR12000 0SP 0SP 0SP 0SP 0SP 0SP 0SP 0SP ");
  EXPECT_TRUE(frmMain.imgMoving.Visible && frmMain.cmdStopNow.Enabled);
  port.Ct().ClearFaults();
  frmMain.cmdStopNow.Press();
  EXPECT_FALSE(frmMain.imgMoving.Visible);
  EXPECT_FALSE(AppState.TeachingNow || AppState.HomeDone) << "another session";
  EXPECT_EQ(Boxes(), Texts{Text(5509)});
}

TEST_F(JogTest, APressWhileAStopIsUnansweredSendsItAtOnce) {
  Spoil(FaultKind::kDeaf, "0SP");
  for (const std::int64_t at_us : {600'000, 820'000, 825'000}) {
    pump.After(at_us, [] { frmMain.Escape(); });
  }
  pump.After(900'000, [this] { EXPECT_FALSE(Moves()); });
  Jog(1, 500'000);
  pump.RunFor(1'000'000);
  EXPECT_EQ(Acts(), "0JR12000 0SP 0SP 0CM0 ");
  EXPECT_TRUE(AppState.TeachingNow && Boxes().empty());
}

TEST_F(JogTest, AnAlarmDuringAJogIsToldAsOne) {
  pump.After(300'000, [this] { port.Ct().RaiseAlarm({'1', '3', 'D'}, pump.NowUs(), false); });
  Jog(1, 500'000);
  EXPECT_TRUE(forms.LastBox().starts_with("The controller has an alarm (")) << forms.LastBox();
  frmPosi.Teach.cmdJOGend.Press();
  frmMain.cmdReset.Press();
  EXPECT_FALSE(frmMain.imgMoving.Visible) << "the controller says that all stand";
}

/// What takes the hand away though it does not leave the button.
TEST_F(JogTest, WhateverTakesTheHandAwayIsARelease) {
  const std::function<void()> rows[] = {
      [] {
        doors.forms->MessageBox({"a box", "", MsgButtons::Ok, MsgIcon::None});
      },
      [] { frmPosi.Visible = false; },
      [] { frmPosi.Minimised = true; },
      [] { frmPosi.Teach.cmdJOG[1].Enabled = false; },
      [] { frmPosi.Teach.cmdJOG[1].Visible = false; },
      [] { frmMain.Escape(); },
  };
  for (const auto& take_away : rows) {
    pump.RunFor(400'000);
    frmPosi.Teach.cmdJOG[1].Hold();
    ASSERT_TRUE(Moves() && !frmPosi.Teach.chkSarvoOn[1].Enabled);
    take_away();
    pump.RunFor(1'000'000);
    EXPECT_FALSE(Moves());
    frmPosi.Teach.cmdJOG[1].LetGo();
    frmPosi.Visible = true;
    frmPosi.Minimised = false;
    ShowTab(2);
  }
}

TEST_F(JogTest, APressTooSoonIsNoneAndSoIsItsRelease) {
  Jog(1, 100'000);
  port.sent.clear();
  Jog(1, 50'000);
  EXPECT_EQ(Acts(), "");
}

TEST_F(JogTest, InchingGoesByStepsWithinTheStroke) {
  OptionButton* const steps[] = {&frmPosi.Teach.optInching1, &frmPosi.Teach.optInching10,
                                 &frmPosi.Teach.optInching100};
  port.Ct().PlaceAxis(1, 50, pump.NowUs());
  const struct {
    int option, index, reached;
  } rows[] = {{0, 1, 51}, {1, 1, 61}, {2, 0, 0}, {0, 0, 0}, {2, 1, 100}};
  for (const auto& row : rows) {
    steps[row.option]->Press();
    pump.RunFor(400'000);
    port.sent.clear();
    Jog(row.index, 10'000);
    pump.RunFor(2'000'000);
    EXPECT_EQ(Pulses(1), row.reached);
  }
  EXPECT_EQ(Acts(), "0MV01403100064" + std::string("001010000000010100000000101000000 "));
  PresentPos.Pulses[0] = AppState.MaxPulse[0];
  EXPECT_FALSE(BuildInchingCommand(100, 1)) << "at the end of the stroke";
  EXPECT_FALSE(BuildInchingCommand(7, 0));
  PresentPos.Pulses[0] += 50;
  EXPECT_FALSE(BuildInchingCommand(10, 0)) << "farther than the step";
}

/// In the display unit too, and though the axis came there unseen.
TEST_F(JogTest, AtTheEndOfTheStrokeAButtonSaysSo) {
  std::string& panel = frmMain.sbStatusBar.Panels[kPanelError];
  for (const bool mm : {false, true}) {
    AppState.DispMmUnit = mm;
    for (OptionButton* mode : {&frmPosi.Teach.optJOG, &frmPosi.Teach.optInching10}) {
      for (const int index : {0, 1}) {
        SCOPED_TRACE(mode->Name + std::to_string(index));
        mode->Press();
        port.Ct().PlaceAxis(1, index == 0 ? 0 : AppState.MaxPulse[0], pump.NowUs());
        pump.RunFor(400'000);
        Jog(index, 300'000);
        EXPECT_EQ(panel, "The end of the stroke.");
        EXPECT_TRUE(frmPosi.Teach.cmdJOG[index].ToolTip.starts_with(panel));
        EXPECT_FALSE(frmPosi.Teach.cmdJOG[1 - index].ToolTip.starts_with(panel));
        pump.RunFor(400'000);
        Jog(1 - index, 30'000);
        EXPECT_EQ(panel, "");
      }
    }
  }
}

}  // namespace
}  // namespace tr7
