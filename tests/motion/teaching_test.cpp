// Teaching from its start to its end.

#include <functional>

#include "forms/frm_main.h"
#include "link/motion_commands.h"
#include "motion/present_pos.h"
#include "state/message_box.h"
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
  port.Ct().PlaceAxis(1, 1234, pump.NowUs());
  ASSERT_EQ(ReadnDisp_PresentPos(), 0);
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

TEST_F(TeachingTest, ServosAndTheSlideByHand) {
  StartTeaching();
  PosiTeaching& f = frmPosi.Teach;
  f.chkSarvoOn[1].Set(false);
  EXPECT_EQ(Acts(), "0CM10200 ");
  EXPECT_EQ(f.chkSarvoOn[1].Caption, "OFF");
  EXPECT_FALSE(AppState.HomeDone);
  EXPECT_FALSE(f.cmdJOG[2].Enabled);
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

/// Where the place is not certain, or not the line's to hold, the line stays as it is.
TEST_F(TeachingTest, ATakeThatCannotBeIsRefused) {
  const struct {
    std::function<void()> before;
    const char* says;
  } rows[] = {
      {[] { Put(1, 3, "2"); }, "The line moves AXIS1 by a distance"},
      {[this] { port.Ct().PlaceAxis(1, AppState.MaxPulse[0] + 1, pump.NowUs()); },
       "The present position lies outside"},
      {[] {
         TusinFailure failure;
         EXPECT_EQ(MoveAxesToCt(2, 1, &failure), 0);
       },
       "An axis is moving"},
      {[this] { Spoil(FaultKind::kSilence, "0RC", 0); }, "The present position could not be read"}};
  StartTeaching();
  const std::string before = Cell(1, 4);
  for (const auto& row : rows) {
    row.before();
    frmPosi.Teach.cmdJOGWrite.Press();
    EXPECT_TRUE(BoxShown(row.says)) << forms.LastBox();
    EXPECT_EQ(Cell(1, 4), before);
    pump.RunFor(3'000'000);
    Put(1, 3, "1");
    port.Ct().PlaceAxis(1, 5, pump.NowUs());
    Forget();
  }
}

TEST_F(TeachingTest, ATableThatFailsTheCheckIsNotTaughtInto) {
  Put(1, 1, "0");
  frmPosi.Teach.cmdJOGST.Press();
  EXPECT_EQ(forms.modals, Texts{"frmSyogoKekka"});
  EXPECT_FALSE(AppState.TeachingNow);
  allow_unanswered = true;
}

TEST_F(TeachingInProgramMode, ARunningProgramRefusesIt) {
  frmPosi.Teach.cmdJOGST.Press();
  EXPECT_EQ(Boxes(), (Texts{"The program is being executed.",
                            "Please execute it again after stopping all programs."}));
  EXPECT_FALSE(AppState.TeachingNow);
  EXPECT_EQ(SentLines(3), "0CM 0TN ");
}

}  // namespace
}  // namespace tr7
