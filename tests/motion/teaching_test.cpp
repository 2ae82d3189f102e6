// Teaching from its start to its end; jog and inching: what goes out for a hand on a button.

#include "forms/frm_io_check_fg.h"
#include "motion/inching.h"
#include "motion/motion_log.h"
#include "motion/present_pos.h"
#include "state/busy_scope.h"
#include "tests/motion/motion_user.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

class TeachingTest : public MotionTest {};

class TeachingInProgramMode : public MotionTest {
 protected:
  TeachingInProgramMode() : MotionTest(WithATask()) {}
  static qvr7sim::Setup WithATask() {
    qvr7sim::Setup setup = InProgramMode();
    setup.running_tasks = 1;
    return setup;
  }
};

TEST_F(TeachingTest, ASessionTakesPositionsLineByLine) {
  StartTeaching();
  EXPECT_FALSE(frmMain.mnuFile.Enabled);
  EXPECT_FALSE(frmPosi.tabCmd.Tabs[0].Enabled || frmPosi.tabCmd.Tabs[1].Enabled);
  EXPECT_EQ(frmPosi.Teach.lblPosiNo.Caption, "1");
  Put(1, 3, "2");
  frmPosi.Teach.cmdJOGWrite.Press();
  EXPECT_TRUE(forms.LastBox().starts_with("The line moves AXIS1 by a distance"));
  Put(1, 3, "1");
  Forget();
  port.Ct().PlaceAxis(1, 1234, pump.NowUs());
  frmPosi.Teach.cmdJOGWriteNext.Press();
  EXPECT_EQ(Cell(1, 4), "1234");
  EXPECT_TRUE(frmPosi.PosiChanged);
  EXPECT_EQ(frmPosi.Teach.lblPosiNo.Caption, "2");
  EXPECT_TRUE(CloseView(frmMain, CloseReason::ControlMenu) == false);
  EXPECT_EQ(Boxes(), Texts{TwoLines(60, 61)});
  port.sent.clear();
  frmPosi.Teach.cmdJOGend.Press();
  EXPECT_EQ(Acts(), "0CM00000 ");
  EXPECT_FALSE(AppState.TeachingNow);
  EXPECT_TRUE(frmMain.mnuFile.Enabled);
}

TEST_F(TeachingTest, WhatIsHeldStillIsGivenBackAheadOfTheTeachingMode) {
  AppState.AxesMayBeHeld = True;
  frmPosi.Teach.cmdJOGST.Press();
  EXPECT_TRUE(Acts().starts_with("0CM00000 0CM11111 ")) << Acts();
}

TEST_F(TeachingTest, ServosAndTheSlideByHand) {
  StartTeaching();
  PosiTeaching& f = frmPosi.Teach;
  f.chkSarvoOn[1].Set(false);
  EXPECT_EQ(Acts(), "0CM10200 ");
  EXPECT_EQ(f.chkSarvoOn[1].Caption, "OFF");
  EXPECT_FALSE(AppState.HomeDone);
  EXPECT_FALSE(f.cmdJOG[2].Enabled);
  EXPECT_EQ(f.cmdJOG[2].ToolTip, Text(7133));
  port.sent.clear();
  f.chkDirectTeach.Set(true);
  EXPECT_EQ(Acts(), "0CM12222 ");
  port.Ct().PlaceAxis(1, 777, pump.NowUs());
  pump.RunFor(700'000);
  EXPECT_EQ(frmPosi.Readout.lblPosi[0].Caption, "777");
  port.sent.clear();
  f.chkDirectTeach.Set(false);
  EXPECT_EQ(Acts(), "0CM10200 ");
  Spoil(FaultKind::kErrorReply, "0CM1");
  pump.After(2'000, [&f] { EXPECT_FALSE(f.chkSarvoOn[1].Value) << "not answered yet"; });
  f.chkSarvoOn[1].Set(true);
  EXPECT_FALSE(f.chkSarvoOn[1].Value) << "the box goes back";
}

TEST_F(TeachingTest, TheMonitorOfInputsPollsBetweenTwoActsAndNotUnderAHand) {
  frmMain.mnuMonitorIO.Press();
  frmIOCheckFG.cmdIoMonitor.Press();
  StartTeaching();
  pump.After(300'000, [this] { port.sent.clear(); });
  pump.After(1'400'000, [this] { EXPECT_EQ(port.sent, ""); });
  Jog(1, 1'500'000);
  pump.RunFor(1'000'000);
  EXPECT_TRUE(Acts().starts_with("0SP 0RI 0RO ")) << Acts();
  frmIOCheckFG.cmdIoMonitor.Press();
}

TEST_F(TeachingInProgramMode, ARunningProgramRefusesIt) {
  frmPosi.Teach.cmdJOGST.Press();
  EXPECT_EQ(Boxes(), (Texts{"The program is being executed.",
                            "Please execute it again after stopping all programs."}));
  EXPECT_FALSE(AppState.TeachingNow);
  EXPECT_EQ(SentLines(3), "0CM 0TN ");
}

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

TEST_F(JogTest, AStopThatNobodyAnswersIsSentOverANewConnectionAndThenTold) {
  Spoil(FaultKind::kSilence, "0SP", 0);
  pump.After(4'000'000, [] { EXPECT_FALSE(frmPosi.Readout.lblPosi[0].Enabled) << "it is old"; });
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

TEST_F(JogTest, ARefusedStopIsToldThoughItsStartWasRefusedAsWell) {
  Spoil(FaultKind::kChangedByte, "0JR");
  Spoil(FaultKind::kErrorReply, "0SP", 0);
  Jog(1, 500'000);
  const Texts told = Boxes();
  ASSERT_EQ(told.size(), 2u) << "the start's second send finds the axis moving";
  EXPECT_TRUE(told[0].starts_with("The controller has an alarm (")) << told[0];
  port.Ct().ClearFaults();
  frmMain.cmdStopNow.Press();
}

TEST_F(JogTest, AStopThatIsRefusedAndThenUnansweredIsToldAsNoAlarm) {
  Spoil(FaultKind::kErrorReply, "0SP");
  for (const int at : {2, 3, 4, 5}) Spoil(FaultKind::kSilence, "0SP", at);
  Jog(1, 500'000);
  EXPECT_EQ(Boxes(), Texts{Text(6540)});
  frmMain.cmdStopNow.Press();
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

TEST_F(JogTest, AStopThatGetsLostIsSentAgainLongBeforeItsTimeOut) {
  for (const FaultKind fault : {FaultKind::kDeaf, FaultKind::kSilence}) {
    port.sent.clear();
    Spoil(fault, "0SP");
    pump.After(1'100'000, [this] { EXPECT_FALSE(Moves()); });
    Jog(1, 500'000);
    EXPECT_EQ(Acts(), "0JR12000 0SP 0SP 0CM0 ");
    EXPECT_TRUE(AppState.TeachingNow && Boxes().empty());
  }
}

TEST_F(JogTest, AnAlarmDuringAJogIsToldAsOne) {
  pump.After(300'000, [this] { port.Ct().RaiseAlarm({'1', '3', 'D'}, pump.NowUs(), false); });
  Jog(1, 500'000);
  EXPECT_TRUE(forms.LastBox().starts_with("The controller has an alarm (")) << forms.LastBox();
  frmPosi.Teach.cmdJOGend.Press();
  frmMain.cmdReset.Press();
  EXPECT_FALSE(frmMain.imgMoving.Visible) << "the controller says that all stand";
}

TEST_F(JogTest, APortThatVanishesLetsTheButtonGoAndIsTold) {
  pump.After(200'000, [this] { port.Vanish(); });
  pump.After(1'200'000, [this] { EXPECT_FALSE(HoldButton::Held() || Moves()); });
  Jog(1, 5'000'000);
  EXPECT_EQ(Boxes(), (Texts{Text(6541), Text(5509)})) << "its stop found a new connection";
  StartTeaching();
  port.Vanish();
  {
    const BusyScope flow;  // it finds that out by itself
    pump.RunFor(1'000'000);
    EXPECT_EQ(Boxes(), Texts());
  }
  pump.RunFor(1'000'000);
  EXPECT_EQ(Boxes(), Texts{Text(5905, "sim", "simulated fault") + "\n\n" + Text(5920) + "\n\n" +
                           Text(7135)});
  EXPECT_TRUE(AppState.Offline && frmPosi.Teach.cmdJOGend.Enabled);
}

/// The release was seen, and no stop of it is on its way.
TEST_F(JogTest, AStartThatIsAnsweredBehindItsReleaseIsStopped) {
  Spoil(FaultKind::kDelay, "0JR");
  pump.After(100'000, [] { frmPosi.Teach.JogReleased = True; });
  pump.After(500'000, [this] { EXPECT_FALSE(Moves()); });
  Jog(1, 600'000);
}

TEST_F(JogTest, AStepThatIsGivenUpAsksNothingMore) {
  frmPosi.Teach.optInching10.Press();
  Spoil(FaultKind::kDelay, "0RC");
  pump.After(100'000, [] { frmMain.Escape(); });
  Jog(1, 1'000);
  EXPECT_EQ(SentLines(3), "0RA 0RC ");
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

/// The release, or a stop that lets the button go, falls on every moment of a press.
TEST_F(JogTest, AReleaseAtAnyMomentStopsTheAxis) {
  for (std::int64_t moment = 0; moment < 240'000; moment += 1'500) {
    SCOPED_TRACE(moment);
    const bool escapes = moment >= 120'000;
    const std::int64_t at_us = moment % 120'000;
    port.sent.clear();
    pump.RunFor(400'000);
    if (escapes) pump.After(at_us, [] { frmMain.Escape(); });
    Jog(1, escapes ? 300'000 : at_us);
    EXPECT_FALSE(Moves());
    const std::string acts = Acts();
    EXPECT_TRUE(acts.empty() || acts == "0JR12000 0SP ") << acts;
    EXPECT_TRUE(frmPosi.Teach.cmdJOG[1].Enabled);
    EXPECT_FALSE(frmPosi.Teach.JogPending || frmPosi.Teach.JogRunning);
  }
}

}  // namespace
}  // namespace tr7
