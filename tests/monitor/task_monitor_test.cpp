// The monitor of the controller's tasks: what it sends, shows and marks, and what ends it.

#include "monitor/task_monitor.h"

#include "motion/motion_log.h"
#include "tests/prog/prog_user.h"

namespace tr7 {
namespace {

class TaskMonitorTest : public ProgUser {
 protected:
  TaskMonitorTest() {
    HoldProgram(virt, 3,
                "0B0003E800000000000"
                "0A00138800000000000"
                "0C0003E800000000000");
    HoldProgram(virt, 30, "103FF00100000000000");
    StartOnline();
    AppState.ProgStepsRead = True;
    frmMain.mnuContProgTask.Press();
    After(900);
    Forget();
  }
  void After(int ms) { pump.RunFor(std::int64_t{ms} * 1000); }
  std::string FramesOf(int program, CommandButton& button) {
    Forget();
    frmProgTask.flgdProgTask.SelectCell(program, 1);
    button.Press();
    After(1900);
    return SentLines(5);
  }
  /// The task rows, without their times.
  static std::string Shown() {
    std::string shown;
    for (int row = 1; row <= kTaskSlots; ++row) {
      for (int col = 1; col < 6; ++col) shown += frmProgTask.flgdProgTask2.Text(row, col) + " ";
    }
    return shown.substr(0, shown.find_last_not_of(' ') + 1);
  }
};

TEST_F(TaskMonitorTest, EveryTickCarriesOutWhatWasLeftAndReadsWhatRuns) {
  FrmProgTask& f = frmProgTask;
  EXPECT_EQ(FramesOf(0, f.cmdStartTask), "0CM1 0TN ");  // no program is chosen
  EXPECT_EQ(FramesOf(3, f.cmdStartTask), "0RA 0DM03 0CM1 0TN 0TS 0PT03 ");
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], Text(7106, "3"));
  FramesOf(30, f.cmdStartTask);
  EXPECT_EQ(Shown(), "3 2 TIM 5  30 1 WTON I1 0");
  FramesOf(3, f.cmdStopTask);
  EXPECT_EQ(f.flgdProgTask2.Text(2, 8), "0:01");
  f.flgdProgTask.SelectCell(30, 1);
  f.cmdStopTask.Press();
  Forget();
  CloseView(f, CloseReason::Code);
  After(4000);
  EXPECT_TRUE(SentLines().starts_with("0PM1E "));
}

TEST_F(TaskMonitorTest, StopAllGoesOutAtOnceDuringATransferThatPausesThePoll) {
  FramesOf(30, frmProgTask.cmdStartTask);
  Forget();
  std::string before;
  pump.After(2'500'000, [&] {
    before = SentLines(3);
    frmProgTask.cmdStopAllTask.Press();
  });
  ReadRange(1, 40);
  EXPECT_EQ(SentLines(3).substr(before.size(), 3), "0PN");
  EXPECT_EQ(before.find("0TN"), std::string::npos);
  After(2500);
  EXPECT_EQ(Shown(), "");
  CloseView(frmProgTask, CloseReason::Code);
}

TEST_F(TaskMonitorTest, TheRunningStepIsMarkedWhereItsListingIsOpenUntilTheLineFails) {
  ProgView& view = Program({"LB 1", "TIM 5", "JUMP 1"});
  view.Store.ProgCopyNo = 3;
  frmProgTask.chkFollow.Set(true);
  FramesOf(3, frmProgTask.cmdStartTask);
  EXPECT_EQ(view.flgdProg.AtWork(), (RowAtWork{2, false}));
  view.flgdProg.SetText(2, kProgOperand1, "6");
  After(2000);
  EXPECT_EQ(view.flgdProg.AtWork(), (RowAtWork{2, true}));
  port.Ct().SetSilent(true);
  pump.After(2'500'000, [] { frmProgTask.cmdStopTask.Press(); });  // a poll waits in vain
  pump.After(3'000'000,
             [] { EXPECT_EQ(frmProgTask.lblPace.Caption, Text(7197, TaskMonitor.TrueAt)); });
  After(12'000);
  ASSERT_EQ(forms.boxes.size(), 2u);
  EXPECT_TRUE(forms.boxes[0].Text.ends_with(Text(7198)));
  EXPECT_EQ(Boxes()[1], Text(7112, "3"));
  EXPECT_EQ(MotionLog.back().outcome, Text(5412));
  EXPECT_EQ(Shown(), "3 2 TIM 5");
  EXPECT_FALSE(frmProgTask.Loaded || frmProgTask.TimerProgramTask.Enabled);
  EXPECT_EQ(view.flgdProg.AtWork(), RowAtWork{});
}

TEST_F(TaskMonitorTest, AnAlarmIsToldWithWhatRanBefore) {
  FramesOf(3, frmProgTask.cmdStartTask);
  port.Ct().RaiseAlarm({'1', '3', 'D'}, pump.NowUs());
  After(4000);
  EXPECT_TRUE(forms.LastBox().ends_with("\nPRG No. 3   STP No. 2")) << forms.LastBox();
}

}  // namespace
}  // namespace tr7
