// Teaching from its start to its end.

#include "forms/frm_main.h"
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
