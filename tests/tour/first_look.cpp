#include "forms/frm_main.h"
#include "forms/frm_options2.h"
#include "forms/frm_posi.h"
#include "state/text.h"
#include "tests/tour/common_steps.h"
#include "tests/tour/scripts.h"

namespace tr7::tour {
namespace {

constexpr int kOfflineText = 5117;
constexpr int kOnlineText = 5116;
/// Code 2 of an axis in the list of error texts.
constexpr const char* kAlarmName = "Overcurrent";
/// Four sends of 5 s each, and some patience.
constexpr int kAllSendsMs = 60'000;

void ReadTable(Tour& tour) {
  User& user = tour.user;
  StartReading(tour, 1, 40, true);
  user.SeeOn(frmMain.cmdComCancel);
  user.See("a third of the read", [] { return frmMain.ProgressBar1.Value > 12; });
  user.Picture("reading");
  user.Click(frmMain.cmdComCancel);
  user.SeeBox(Text(425));
  user.Picture("reading-stopped");
  user.Answer(MsgAnswer::Ok);
  user.SeeReady();
  StartReading(tour, 1, 40, false);
  user.SeeReady();
}

void ShowPulses(Tour& tour) {
  User& user = tour.user;
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOptions);
  user.SeeOn(frmOptions2.txtPortNo);
  user.Picture("options-port");
  user.ClickTab(frmOptions2.tabOptions, 2);
  user.Click(frmOptions2.optUnitPulse);
  user.Picture("options-unit");
  user.Click(frmOptions2.cmdOk);
  user.SeeGone(frmOptions2);
}

void MeetSilence(Tour& tour) {
  User& user = tour.user;
  tour.sim.Tell("silence on");
  StartReading(tour, 1, 40, false);
  user.SeeBox(Text(100), kAllSendsMs);
  user.SeeBox(Text(103));
  user.Picture("time-out");
  user.Answer(MsgAnswer::Ok);
  user.SeeText(frmMain.lblOnline, Text(kOfflineText));
  user.SeeReady();
  tour.sim.Tell("silence off");
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOnline);
  user.SeeText(frmMain.lblOnline, Text(kOnlineText));
  user.SeeReady();
}

void MeetAlarm(Tour& tour) {
  User& user = tour.user;
  tour.sim.Tell("alarm 1 2");
  StartReading(tour, 1, 40, false);
  user.SeeBox(kAlarmName);
  user.Picture("alarm-box");
  user.Answer(MsgAnswer::Ok);
  user.SeeReady();
  user.SeePanel(kPanelError, kAlarmName);
  user.SeeLamp(frmMain.imgAlarm, true);
  user.Picture("alarm");
  user.Click(frmMain.cmdReset);
  user.SeeLamp(frmMain.imgAlarm, false);
  user.SeePanel(kPanelError, Text(416));
  user.SeeText(frmMain.lblOnline, Text(kOnlineText));
  user.SeeReady();
  user.Picture("alarm-reset");
}

}  // namespace

void FirstLook(Tour& tour) {
  PassSplash(tour);
  ConnectAtStart(tour);
  tour.user.Picture("online");
  ReadTable(tour);
  tour.user.Picture("table-mm");
  ShowPulses(tour);
  tour.user.Picture("table-pulses");
  MeetSilence(tour);
  MeetAlarm(tour);
  LeaveByMenu(tour);
}

}  // namespace tr7::tour
