#include "core/main_entry.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/help.h"
#include "core/keep_work.h"
#include "core/kept_offer.h"
#include "core/window_state.h"
#include "device/dev_setting.h"
#include "device/limits.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "forms/frm_splash.h"
#include "link/error_list.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "motion/stop.h"
#include "para/device_choice.h"
#include "platform/doors.h"
#include "session/followers.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/progress.h"
#include "state/selection.h"
#include "state/settings.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"

namespace tr7 {
namespace {

void PumpUntilSplashDone() {
  while (!AppState.SplashDone) Pump();
}

void SplashTick() {
  AppState.SplashDone = True;
  frmSplash.timerSplash.Stop();
}

void ClearDevices() {
  for (int axis = 0; axis < kAxes; ++axis) {
    DevSetting[axis].Size.clear();
    DevSetting[axis].Speed.clear();
    DevSetting[axis].Stroke = 0;
    DevSetting[axis].NotChosen = True;
    DevSetting[axis].Series = "QV";
    AppState.AxisMuko[axis] = False;
  }
}

/// The stored rectangle, within what any screen shows: a damaged value must not hide the window.
void ApplyWindowRectangle() {
  const auto sane = [](double value, double low, double high, double fallback) {
    return value >= low && value <= high ? value : fallback;
  };
  constexpr double kFarthest = 150000;
  frmMain.Left = sane(GetSettingNumber("MainLeft", 1000), -kFarthest, kFarthest, 1000);
  frmMain.Top = sane(GetSettingNumber("MainTop", 1000), -kFarthest, kFarthest, 1000);
  frmMain.Width = sane(GetSettingNumber("MainWidth", 15240), 3000, kFarthest, 15240);
  frmMain.Height = sane(GetSettingNumber("MainHeight", 11000), 3000, kFarthest, 11000);
  frmMain.Maximised = GetSettingNumber("MainMaximised", 0) > 0;
}

void LoadFrame() {
  ApplyWindowRectangle();
  PumpUntilSplashDone();
  frmMain.Caption = Text(201) + " Ver" + VersionText();
  // The splash goes before the first dialogue comes, or it would stand over it.
  doors.forms->Show(frmMain);
  frmMain.Visible = true;
  UnloadView(frmSplash);
  ShowView(frmPosi);
  Hide_ProgressBar();
  StartOnlineOfflineChoice();
  RestoreWindows();
  OfferKeptWork();
}

bool QueryUnloadFrame(CloseReason reason) {
  if (StopBeforeClosing()) return true;
  if (AppState.TeachingNow) {
    MsgBox(TwoLines(60, 61));
    return true;
  }
  if (reason == CloseReason::ControlMenu && AppState.ComBusy) {
    TellFlowRuns();  // in words that stop nothing: the transfer goes on
    return true;
  }
  // The views inside the frame are asked here too, while all of them can still stay: later on
  // nothing stops the close.
  const std::vector<View*> views = OpenViews();
  const bool refused = std::any_of(views.begin(), views.end(), [](View* view) {
    // A question may have closed another view.
    return view != &frmMain && view->Loaded && view->QueryUnload &&
           view->QueryUnload(CloseReason::Code);
  });
  if (refused) return true;
  const std::vector<View*> all = AllViews();
  return std::any_of(all.begin(), all.end(),
                     [](View* view) { return view->QueryEnd && view->QueryEnd(); });
}

bool ChooseOnline() {
  return SelectionDialog({.Title = Text(471),
                          .What = 7185,
                          .Prompt = Text(71),
                          .Choices = {Text(72), Text(73)},
                          .MayCancel = false}) == Selection::First;
}

void ChooseModeOffline() {
  const Selection choice = SelectionDialog({.Title = Text(471),
                                            .What = 7186,
                                            .Prompt = Text(74),
                                            .Choices = {Text(128), Text(129)},
                                            .MayCancel = false});
  AppState.CtMode = choice == Selection::Second;
  DispControlerMode();
  ChangeMenuDisp(AppState.CtMode);
}

}  // namespace

std::string VersionText() {
  return std::to_string(TR7_VERSION_MAJOR) + "." + std::to_string(TR7_VERSION_MINOR) +
         std::to_string(TR7_VERSION_REVISION);
}

void StartOnlineOfflineChoice() {
  const CommandsOff commands_off;
  SetOffline();
  PortLampHyoji();
  AllViewsLayoutChanged();
  bool online = false;
  if (ChooseOnline()) {
    const BusyScope busy;
    online = FirstConnection();
  }
  if (!online) {
    ChooseModeOffline();
    SelectDevicesAtStart();
    AppState.AxisCount = kAxes;
  }
  RecalcLimits();
  AllViewsLayoutChanged();
}

void UnloadFrame() {
  if (Followers.StopBeforeTheEnd) Followers.StopBeforeTheEnd();
  if (Followers.TakeBackBeforeTheEnd) Followers.TakeBackBeforeTheEnd();
  RememberWindows();
  const std::vector<View*> views = OpenViews();
  for (View* view : views) {
    if (view != &frmMain) UnloadView(*view);
  }
  // A flow beneath this close, if there is one, comes to its end: no reply will come any more.
  AppState.CancelRequested = True;
  AppState.Closing = True;
  StopKeeping();
  TusinPortCloseForce();
  SaveSettingsAtExit();
  doors.forms->EndProcess();
}

void Main() {
  FindHelpFile();
  LoadSettingLanguage();  // the splash is already in the user's language
  frmSplash.lblVersion.Caption = VersionText();
  ShowView(frmSplash);
  doors.forms->Refresh();
  frmSplash.timerSplash.Start();
  ClearDevices();
  AppState.AxisPattern = 0;
  AppState.LanguageChanged = False;
  TusinQueueClear();
  AppState.NextProgViewNo = 1;
  AppState.BaudIndex = 0;
  AppState.Offline = True;
  LoadDefaults();
  LoadMotionSettings();
  ReadErrorList();
  frmMain.Load = LoadFrame;
  ShowView(frmMain);
}

void InstallEntry() {
  frmSplash.timerSplash.Tick = frmSplash.Dismiss = SplashTick;
  frmMain.Load = LoadFrame;
  frmMain.QueryUnload = QueryUnloadFrame;
  frmMain.Unload = UnloadFrame;
  frmMain.timerTerminate.Tick = UnloadFrame;
}

}  // namespace tr7
