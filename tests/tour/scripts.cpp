#include "tests/tour/scripts.h"

#include "forms/frm_about.h"
#include "forms/frm_device.h"
#include "forms/frm_stroke_calc.h"
#include "tests/tour/steps.h"

namespace tr7::tour {
namespace {

constexpr int kOfflineText = 5117, kNoDifference = 6561;
constexpr std::size_t kFirst = 0, kSecond = 1;

// From the splash to a table read from the controller; a controller that is silent, and an alarm.

void BreakOffReading(User& user) {
  constexpr int kStopped = 425;
  StartReading(user, true);
  user.SeeOn(frmMain.cmdComCancel);
  user.See("a third of the read", [] { return frmMain.ProgressBar1.Value > 12; });
  user.Picture("reading");
  user.Click(frmMain.cmdComCancel);
  user.AnswerBox(Text(kStopped), MsgAnswer::Ok, "reading-stopped");
  user.SeeReady();
}

void MeetSilence(User& user) {
  constexpr int kNoAnswer = 100;
  user.TellSim("silence on");
  StartReading(user);
  // After four sends of 5 s each.
  user.AnswerBox(Text(kNoAnswer), MsgAnswer::Ok, "time-out", User::kTransferMs);
  user.SeeText(frmMain.lblOnline, Text(kOfflineText));
  user.SeeReady();
  user.TellSim("silence off");
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOnline);
  SeeOnline(user, false);
}

void MeetAlarm(User& user) {
  // Code 2 of an axis in the list of error texts.
  const char* const name = AppState.LanguageNo == 1 ? "過電流" : "Overcurrent";
  user.TellSim("alarm 1 2");
  StartReading(user);
  user.AnswerBox(name, MsgAnswer::Ok, "alarm-box");
  user.SeeReady();
  user.SeePanel(kPanelError, name);
  user.SeeLamp(frmMain.imgAlarm, true);
  user.Picture("alarm");
  user.Click(frmMain.cmdReset);
  user.SeeLamp(frmMain.imgAlarm, false);
  SeeOnline(user, false);
  user.Picture("alarm-reset");
}

void FirstLook(User& user) {
  StartOnline(user);
  user.Picture("online");
  BreakOffReading(user);
  ReadAll(user);
  user.Picture("table-mm");
  SwitchToPulses(user);
  user.Picture("table-pulses");
  MeetSilence(user);
  MeetAlarm(user);
  user.Choose(frmMain.mnuHelp, frmMain.mnuHelpAbout);
  user.SeeOn(frmAbout.cmdCopy);
  user.Picture("about");
  user.Click(frmAbout.cmdClose);
  LeaveByMenu(user);
}

// The day of a position table: read, edit, check, save, write, verify, open again.

void MainJob(User& user) {
  const Cell speed{3, AxisBase(0) + kVel}, place{3, AxisBase(0) + kPosi},
      push{4, AxisBase(0) + kPf};
  StartOnline(user);
  ReadAll(user);
  BeRefused(user, speed, "500", "30");
  EditCell(user, speed, "45");
  EditCell(user, place, "33.333");
  SeeCell(user, place, "33.335");  // the motor's next pulse
  SeeCell(user, speed, "45");
  user.Picture("edit-accepted");
  CheckTable(user, push, "0");
  SaveNew(user, user.file);
  SwitchToPulses(user);
  SeeCell(user, place, "6667");
  user.Picture("in-pulses");
  WriteAll(user);
  VerifyEqual(user);
  EditCell(user, place, "7000");
  VerifyDifferent(user, "7000", "6667");
  VerifyFile(user, user.file, "7000");
  CompareFile(user, user.file, "7000", "6667");
  OpenAgain(user, user.file, place, "6667");
  LeaveByMenu(user);
}

// Devices and parameters chosen offline; then a controller that differs in mode and devices.

/// The lists follow the size, and the option the device.
void ChooseDevices(User& user) {
  DeviceView& view = frmDevice3;
  user.SeeOn(view.comboDeviceSize[kFirst]);
  user.Picture("offline-devices");
  user.Pick(view.comboDeviceSize[kFirst], " 50");
  user.Pick(view.comboDeviceSpeed[kFirst], "H");
  user.SeeEntry(view.comboDeviceStroke[kFirst], "100", false);
  user.Pick(view.comboDeviceStroke[kFirst], "400");
  user.Pick(view.comboDeviceSize[kSecond], "E35");
  user.Click(view.chkNewOrOld[2]);
  user.SeeText(view.comboDeviceSize[2], "28");
  user.Click(view.chkAxisEnable[3]);
  user.SeeOn(view.comboDeviceSize[3], false);
  user.Picture("offline-devices-chosen");
  user.Leave(view, view.cmdDeviceSet);
  user.SeeReady();
  user.SeeText(*frmPosi.lblDeviceType[kFirst], "QV- 50H-400");
}

void StartOffline(User& user) {
  constexpr int kWhichMode = 74, kPositionerMode = 128;
  PassSplash(user, false);
  Choose(user, kWhichMode, "offline-mode");
  ChooseDevices(user);
  user.SeeText(frmMain.lblOnline, Text(kOfflineText));
  user.SeeText(frmMain.lblCtMode, Text(kPositionerMode));
  user.Picture("offline");
}

void RefuseParameter(User& user) {
  constexpr int kAxis2 = 221;
  TextBox& field = frmParameta2.txtHomeOffset[kSecond];
  user.Type(field, "99999");
  user.Key(Qt::Key_Tab);
  user.SeePanel(kPanelError, Text(kAxis2));
  user.SeeEmpty(field);
  user.Picture("parameter-refused");
}

void CalculateStroke(User& user) {
  user.Click(frmParameta2.cmdCalculate);
  user.SeeOn(frmStrokeCalc.cmdCulStrokePulse);
  user.Picture("stroke-empty");
  user.Type(frmStrokeCalc.txtCulStroke, "150");
  user.Type(frmStrokeCalc.txtCulLead, "6");
  user.Click(frmStrokeCalc.cmdCulStrokePulse);
  // 150 mm at 6 mm and 400 pulses a turn.
  user.SeeText(frmStrokeCalc.lblStrokePulse, "10000");
  user.Picture("stroke-result");
  user.Leave(frmStrokeCalc, frmStrokeCalc.cmdClose);
}

void ShowParameters(User& user) {
  constexpr int kSaveBeforeClose = 6067;
  user.Choose(frmMain.mnuView, frmMain.mnuViewPara);
  user.SeeOn(frmParameta2.cmdIniPrm);
  user.SeeText(frmParameta2.txtAxisMmStroke[kFirst], "400");
  for (int page = 0; user.TurnToPage(frmParameta2, page); ++page) {
    user.Picture("parameters-" + std::to_string(page + 1));
  }
  user.TurnToPage(frmParameta2, 0);
  RefuseParameter(user);
  CalculateStroke(user);
  user.Click(frmParameta2.cmdClose);
  user.AnswerBox(Text(kSaveBeforeClose), MsgAnswer::No);
  user.SeeGone(frmParameta2);
  user.SeeReady();
}

void TakeAwayAnAxis(User& user) {
  constexpr int kWhichDevices = 41, kAxesChanged = 1151;
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingDevice);
  Choose(user, kWhichDevices, "device-source");
  user.SeeOn(frmDevice2.comboAxisSelect);
  user.Picture("device-dialogue");
  user.Pick(frmDevice2.comboAxisSelect, 1);
  user.Click(frmDevice2.cmdDeviceSet);
  user.AnswerBox(Text(kAxesChanged), MsgAnswer::Yes, "device-axes-changed");
  user.SeeReady();
  user.See("two axes left", [] { return bool(AppState.AxisMuko[2]); });
}

/// The controller runs in the other mode and has other devices.
void Reconcile(User& user) {
  constexpr int kModesDiffer = 490, kDevicesDiffer = 371;
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOnline);
  Choose(user, kModesDiffer, "reconcile-mode");
  Choose(user, kDevicesDiffer, "reconcile-devices");
  SeeOnline(user, true);
  user.Picture("reconciled");
}

void ProgramJob(User& user) {
  const Cell place{2, AxisBase(1) + kPosi};
  ReadAll(user);
  user.Picture("program-table");
  BeRefused(user, place, "999", "30.000");
  // A way beside the place: as much further from where the axis stands.
  EditCell(user, place, "+12.5");
  SeeCell(user, place, "+12.495");
  user.Picture("edit-accepted");
  SaveAs(user, user.file);
  WriteAll(user);
  VerifyEqual(user);
  EditCell(user, place, "15");
  VerifyDifferent(user, "15.000", "12.495");
  VerifyFile(user, user.file, "15.000");
  OpenAgain(user, user.file, place, "+12.495");
}

void OfflineFirst(User& user) {
  StartOffline(user);
  ShowParameters(user);
  TakeAwayAnAxis(user);
  Reconcile(user);
  ProgramJob(user);
  LeaveByMenu(user);
}

// Parameters beside the controller's: one is taken over, another is written.

void WriteParameters(User& user) {
  constexpr int kWrite = 470, kReflect = 685, kWritten = 1527;
  user.Click(frmParameta2.cmdParaWrite);
  user.AnswerBox(Text(kWrite), MsgAnswer::Yes);
  user.AnswerBox(Text(kReflect), MsgAnswer::No, nullptr, User::kTransferMs);
  user.AnswerBox(Text(kWritten), MsgAnswer::Ok);
  user.SeeReady();
}

void CompareJob(User& user) {
  TextBox &push = frmParameta2.txtHomePush[kSecond], &hold = frmParameta2.txtHomeVel[kFirst];
  StartOnline(user);
  ReadParameters(user);
  user.Type(push, "77");
  user.Type(hold, "12");
  user.Key(Qt::Key_Tab);
  user.Click(frmParameta2.cmdParaCompare);
  user.SeeOn(frmCompare.cmdCompare);
  user.Picture("compare-choice");
  user.Click(frmCompare.cmdCompare);
  user.SeeCell(frmCompare.flgdCompare, 1, 2, "77");
  user.Picture("compare-parameters");
  user.Key(Qt::Key_Return);
  user.SeeCell(frmCompare.flgdCompare, 1, 2, "12");
  user.Picture("compare-taken");
  user.Leave(frmCompare, frmCompare.cmdClose);
  user.SeeText(push, "50");
  WriteParameters(user);
  user.Click(frmParameta2.cmdParaCompare);
  user.Click(frmCompare.cmdCompare);
  user.SeeText(frmCompare.lblCount, Text(kNoDifference, "103"));
  user.Picture("compare-equal");
  user.Click(frmCompare.cmdClose);
  LeaveByMenu(user);
}

}  // namespace

const std::vector<Script>& Scripts() {
  static const std::vector<Script> scripts{
      {"look", {}, FirstLook},
      {"job", {}, MainJob},
      {"offline", {"--mode", "prg"}, OfflineFirst},
      {"motion", {}, MoveAndTeach},
      {"program", {"--mode", "prg", "--tasks", "1"}, BeRefusedByAProgram},
      {"prog", {"--mode", "prg"}, EditProgram},
      {"io",
       {"--mode", "prg", "--homed", "--program", "1:" TR7_SOURCE_DIR "/samples/palletising.prg",
        "--tasks", "1"},
       WatchProgram},
      {"iopos", {"--homed"}, WatchHandshake},
      {"tasks",
       {"--mode", "prg", "--homed", "--program", "1:" TR7_SOURCE_DIR "/samples/handshake_a.prg",
        "--program", "2:" TR7_SOURCE_DIR "/samples/handshake_b.prg"},
       WatchTasks},
      {"compare", {}, CompareJob},
      {"data", {}, WorkOnData},
      {"wire", {}, LookAtLine},
      {"keep", {}, TakeBackWork},
      {"print", {}, PrintData},
      {"print-prg", {"--mode", "prg"}, PrintPrograms}};
  return scripts;
}

}  // namespace tr7::tour
