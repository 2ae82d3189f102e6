#include "forms/frm_device.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_selection.h"
#include "forms/frm_stroke_calc.h"
#include "state/text.h"
#include "tests/tour/common_steps.h"
#include "tests/tour/scripts.h"

namespace tr7::tour {
namespace {

constexpr int kModeQuestion = 74, kPositionerMode = 128, kProgramMode = 129;
constexpr int kOfflineText = 5117, kOnlineText = 5116;
constexpr int kReconcileMode = 490, kReconcileDevices = 371;
constexpr int kSaveBeforeClose = 6067;
constexpr int kAxis2 = 221;
constexpr std::size_t kFirst = 0, kSecond = 1;

/// With the devices of the settings, but for the first axis.
void StartOffline(Tour& tour) {
  User& user = tour.user;
  PassSplashUnseen(tour);
  user.Click(frmSelection.optChoice2);
  user.Click(frmSelection.cmdOk);
  user.SeeText(frmSelection.lblPrompt, Text(kModeQuestion));
  user.Click(frmSelection.cmdOk);
  user.SeeOn(frmDevice3.cmdDeviceSet);
  user.PickText(frmDevice3.comboDeviceSize[kFirst], " 50");
  user.PickText(frmDevice3.comboDeviceSpeed[kFirst], "H");
  user.SeeLacks(frmDevice3.comboDeviceStroke[kFirst], "100");
  user.PickText(frmDevice3.comboDeviceStroke[kFirst], "400");
  user.Click(frmDevice3.cmdDeviceSet);
  user.SeeGone(frmDevice3);
  user.SeeReady();
  user.SeeText(frmMain.lblOnline, Text(kOfflineText));
  user.SeeText(frmMain.lblCtMode, Text(kPositionerMode));
}

void RefuseValue(Tour& tour) {
  User& user = tour.user;
  TextBox& field = frmParameta2.txtHomeOffset[kSecond];
  user.Type(field, "99999");
  user.Key(Qt::Key_Tab);
  user.SeePanel(kPanelError, Text(kAxis2));
  user.SeeEmpty(field);
  user.Picture("parameter-refused");
}

void CalculateStroke(Tour& tour) {
  User& user = tour.user;
  user.Click(frmParameta2.cmdCalculate);
  user.SeeOn(frmStrokeCalc.cmdCulStrokePulse);
  user.Picture("stroke-empty");
  user.Type(frmStrokeCalc.txtCulStroke, "150");
  user.Type(frmStrokeCalc.txtCulLead, "6");
  user.Click(frmStrokeCalc.cmdCulStrokePulse);
  // 150 mm at 6 mm and 400 pulses a turn.
  user.SeeText(frmStrokeCalc.lblStrokePulse, "10000");
  user.Picture("stroke-result");
  user.Click(frmStrokeCalc.cmdClose);
  user.SeeGone(frmStrokeCalc);
}

void ShowParameters(Tour& tour) {
  User& user = tour.user;
  user.Choose(frmMain.mnuView, frmMain.mnuViewPara);
  user.SeeOn(frmParameta2.cmdIniPrm);
  user.SeeText(frmParameta2.txtAxisMmStroke[kFirst], "400");
  for (int page = 0; page < user.Pages(frmParameta2); ++page) {
    user.TurnToPage(frmParameta2, page);
    user.Picture("parameters-" + std::to_string(page + 1));
  }
  user.TurnToPage(frmParameta2, 0);
  RefuseValue(tour);
  CalculateStroke(tour);
  user.Click(frmParameta2.cmdClose);
  user.SeeBox(Text(kSaveBeforeClose));
  user.Answer(MsgAnswer::No);
  user.SeeGone(frmParameta2);
}

/// The controller runs in the other mode and has other devices.
void GoOnline(Tour& tour) {
  User& user = tour.user;
  user.SeeReady();
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOnline);
  user.SeeText(frmSelection.lblPrompt, Text(kReconcileMode));
  user.Picture("reconcile-mode");
  user.Click(frmSelection.cmdOk);
  user.SeeText(frmSelection.lblPrompt, Text(kReconcileDevices));
  user.Picture("reconcile-devices");
  user.Click(frmSelection.cmdOk);
  user.SeeText(frmMain.lblOnline, Text(kOnlineText));
  user.SeeText(frmMain.lblCtMode, Text(kProgramMode));
  user.SeeReady();
  user.Picture("reconciled");
}

}  // namespace

void ParametersAndReconcile(Tour& tour) {
  StartOffline(tour);
  ShowParameters(tour);
  GoOnline(tour);
  LeaveByMenu(tour);
}

}  // namespace tr7::tour
