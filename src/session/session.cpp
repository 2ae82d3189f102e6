#include "session/session.h"

#include <string>

#include "device/ct_device.h"
#include "device/limits.h"
#include "device/take_ct_device.h"
#include "forms/frm_main.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "platform/doors.h"
#include "session/open_port.h"
#include "session/reconcile.h"
#include "session/version_check.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/progress.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/views.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr int kConnectSteps = 4;
constexpr int kMsgPortLost = 5920;
constexpr int kMsgGivenUp = 5970;

/// The cancel button ends the sequence after the step that runs.
bool GivenUp() { return AppState.CancelRequested; }

int ConnectSteps() {
  SetOnline();
  ProgressScope progress(Text(368), kConnectSteps, true);
  if (CtComStart(1) != 0 || GivenUp()) return 1;
  if (GetVersionNoDisp() != 0 || GivenUp()) return 1;
  if (!CheckModelMarker()) return 1;
  AppState.AxisCount = AppState.CtAxisDigit;
  progress.Set(1);
  if (ReconcileMode(progress) != 0 || GivenUp()) return 1;
  if (ReconcileDevices(DeviceReconcile::Connect) != 0 || GivenUp()) return 1;
  // The controller's own axes, also where they are disregarded: its replies speak of them.
  AppState.AxisPattern = AppState.AxisPatternOfCt;
  AppState.CtModePending = False;
  progress.Set(kConnectSteps);
  VersionHyoji();
  return 0;
}

void FailToOffline() {
  EndSession();
  if (GivenUp()) TellInStatusPanel(Text(kMsgGivenUp));
}

int FirstConnectionSteps() {
  ProgressScope progress(Text(368), kConnectSteps, true);
  if (CtControlModeSet(0, 0, 0) != 0 || GivenUp()) return 1;
  if (GetVersionNoDisp() != 0 || GivenUp()) return 1;
  if (!CheckModelMarker()) return 1;
  AppState.AxisCount = AppState.CtAxisDigit;
  progress.Set(1);
  if (ReadCtModeAndAxis() != 0 || GivenUp()) return 1;
  TakeModeAndAxesOfCt();
  progress.Set(2);
  DispControlerMode();
  ChangeMenuDisp(AppState.CtMode);
  if (ReadCtDeviceFromCt() != 0 || GivenUp()) return 1;
  progress.Set(3);
  TakeDevFromCt();
  RecalcLimits();
  TusinPortClose();
  frmMain.lblStatus.Caption = Text(1902);
  doors.forms->Refresh();
  AllViewsLayoutChanged();
  progress.Set(kConnectSteps);
  AllViewsOnlineChanged();
  VersionHyoji();
  return 0;
}

}  // namespace

int fChangeToOnline() {
  if (TusinPortOpen() != 0) return 1;
  if (ConnectSteps() == 0) return 0;
  FailToOffline();
  return 1;
}

int ChangeToOnlineFromCommand() { return OpenPortOrTell() == 0 ? fChangeToOnline() : 1; }

int ConnectOrOpenPort() {
  return AppState.Offline ? ChangeToOnlineFromCommand() : OpenPortOrTell();
}

void ChangeToOnlineMenu() {
  const TransferScope transfer;
  ChangeToOnlineFromCommand();  // the step that failed has told the user
}

void ChangeToOfflineMenu() {
  const CommandsOff commands_off;
  if (!AppState.Offline &&
      MsgBox(Text(432), MsgButtons::OkCancel, MsgIcon::Question) != MsgAnswer::Ok) {
    return;
  }
  EndSession();
}

int FirstConnection() {
  const auto muko = AppState.AxisMuko;
  AppState.Offline = False;
  if (FirstConnectionSteps() == 0) return 0;
  // Half a controller's state is nobody's: the offline start begins with all axes.
  AppState.AxisMuko = muko;
  AppState.AxisPattern = 0;
  FailToOffline();
  return 1;
}

bool PortWatchHasWork() { return PortLampLies() || (PortIsLost() && !LineIsInUse()); }

void PortWatchTick() {
  PortLampHyoji();
  if (!PortIsLost() || LineIsInUse()) return;
  const std::string lost = LostPortText();
  FailToOffline();
  AllViewsCmdYuko();
  MsgBox(lost + "\n\n" + Text(kMsgPortLost));
}

}  // namespace tr7
