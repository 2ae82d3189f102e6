#include "motion/motion_now.h"
#include "tests/tour/scripts.h"
#include "tests/tour/steps.h"

namespace tr7::tour {
namespace {

constexpr int kMoveTab = 1, kTeachingTab = 2;
constexpr int kMoveMs = 60'000;

void SeeReached(User& user, const std::string& number) {
  user.See(
      "position " + number + " reached",
      [number] { return frmPosi.Readout.lblkanryoNo.Caption == number; }, kMoveMs);
}

void SeeAtRest(User& user) {
  user.See(
      "the axes at rest", [] { return MotionNow.Kind == Motion::None; }, kMoveMs);
  user.SeeReady(kMoveMs);
}

/// The sensor fails first.
void Home(User& user) {
  constexpr int kSensor = 562;
  user.TellSim("fail-homing 1");
  user.Click(frmPosi.Move.cmdHome);
  user.AnswerBox(Text(kSensor), MsgAnswer::Ok, "home-sensor", kMoveMs);
  user.SeeReady();
  user.Click(frmMain.cmdReset);
  user.SeeLamp(frmMain.imgAlarm, false);
  user.SeeReady();
  // A reset that the controller has taken is a connection too.
  if (InTool([] { return static_cast<bool>(AppState.Offline); })) {
    user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOnline);
    SeeOnline(user, false);
  }
  user.ClickTab(frmPosi.tabCmd, kMoveTab);
  user.Click(frmPosi.Move.cmdHome);
  user.See("homing", [] { return MotionNow.Kind == Motion::Homing; });
  user.Picture("homing");
  SeeReached(user, "H0");
  SeeAtRest(user);
  user.SeeLamp(frmPosi.Readout.imgHomeGreen, true);
  user.Picture("homed");
}

void MoveByList(User& user) {
  PosiMoveTest& f = frmPosi.Move;
  int row = 1;
  for (const char* number : {"2", "3", "1"}) {
    user.ClickCell(f.flgdProgram, row++, 1);
    user.Keys(number);
    user.Key(Qt::Key_Return);
  }
  user.Click(f.cmdSelectMove);
  user.SeeOn(f.cmdTmpStop);
  user.Picture("selective-move");
  user.Click(f.cmdTmpStop);
  SeeReached(user, "2");
  SeeAtRest(user);
  user.Picture("paused");
  user.Click(f.cmdSelectMove);
  SeeReached(user, "1");
  SeeAtRest(user);
}

void MoveByRangeAndGroup(User& user) {
  PosiMoveTest& f = frmPosi.Move;
  user.Click(f.cmdMove);
  SeeReached(user, "1");
  SeeAtRest(user);
  user.Click(f.cmdGrpMove);
  SeeAtRest(user);
  user.Picture("group-moved");
  user.Click(f.cmdSelectMove);
  user.See("a move", [] { return MotionNow.Kind == Motion::Move; });
  user.Click(frmMain.cmdStopNow);
  SeeAtRest(user);
  user.Picture("stopped-at-once");
}

void Teach(User& user) {
  PosiTeaching& f = frmPosi.Teach;
  user.ClickTab(frmPosi.tabCmd, kTeachingTab);
  user.Picture("teaching-tab");
  user.Click(f.cmdJOGST);
  user.SeeOn(f.cmdJOGend);
  const std::string before = frmPosi.Readout.lblPosi[0].Caption;
  user.Hold(f.cmdJOG[1], 700, "jog-held");
  user.See("the jog's end", [] { return MotionNow.Kind == Motion::None; });
  user.See("another position", [before] { return frmPosi.Readout.lblPosi[0].Caption != before; });
  user.SeeOn(f.optInching100);
  user.Click(f.optInching100);
  user.Hold(f.cmdJOG[1], 100);
  user.SeeOn(f.cmdJOG[1]);
  user.Picture("inched");
  const std::string taken = frmPosi.Readout.lblPosi[0].Caption;
  user.ClickCell(frmPosi.flgdData, kPosiHeaderRows + 4, AxisBase(0) + kPosi);
  user.SeeText(f.lblPosiNo, "5");
  user.Click(f.cmdJOGWriteNext);
  SeeCell(user, {5, AxisBase(0) + kPosi}, taken);
  user.SeeText(f.lblPosiNo, "6");
  user.Picture("taken");
  user.Click(f.cmdJOGend);
  user.SeeReady();
}

}  // namespace

void MoveAndTeach(User& user) {
  constexpr int kDropChanges = 391;
  StartOnline(user);
  ReadAll(user);
  user.ClickTab(frmPosi.tabCmd, kMoveTab);
  user.Picture("move-tab");
  Home(user);
  MoveByList(user);
  MoveByRangeAndGroup(user);
  Teach(user);
  user.Choose(frmMain.mnuHelp, frmMain.mnuHelpMotionLog);
  user.Picture("motion-log");
  user.Choose(frmMain.mnuFile, frmMain.mnuFileExit);
  user.AnswerBox(Text(kDropChanges), MsgAnswer::No);
}

void BeRefusedByAProgram(User& user) {
  constexpr int kProgramRuns = 451, kStopPrograms = 452;
  StartOnline(user, true);
  user.ClickTab(frmPosi.tabCmdPrg, kTeachingTab);
  user.Click(frmPosi.Teach.cmdJOGST);
  user.AnswerBox(Text(kProgramRuns), MsgAnswer::Ok, "program-runs");
  user.AnswerBox(Text(kStopPrograms), MsgAnswer::Ok);
  LeaveByMenu(user);
}

}  // namespace tr7::tour
