#include "session/session.h"

#include <string>

#include "device/ct_device.h"
#include "device/limits.h"
#include "device/take_ct_device.h"
#include "forms/frm_main.h"
#include "forms/hold_button.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "link/tusin_wait.h"
#include "platform/doors.h"
#include "session/followers.h"
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
constexpr int kMsgGivenUp = 5970;

/// What a connection tells one controller from another by.
struct CtIdentity {
  std::string version = AppState.CtVersionText, marker = AppState.CtModelMarker;
  AxisArray<Bool16> muko = AppState.AxisMukoOfCt;
  AxisArray<CtDeviceRecord> devices = CtDev;
  bool operator==(const CtIdentity&) const = default;
};

/// The cancel button ends the sequence after the step that runs.
bool GivenUp() { return AppState.CancelRequested; }

bool ConnectSteps() {
  AppState.HomeDone = False;
  SetOnline();
  ProgressScope progress(Text(368), kConnectSteps, true);
  if (CtComStart(1) != 0 || GivenUp()) return false;
  if (GetVersionNoDisp() != 0 || GivenUp()) return false;
  if (!CheckModelMarker()) return false;
  AppState.AxisCount = AppState.CtAxisDigit;
  progress.Set(1);
  if (ReconcileMode(progress) != 0 || GivenUp()) return false;
  if (ReconcileDevices(DeviceReconcile::Connect) != 0 || GivenUp()) return false;
  // The controller's own axes, also where they are disregarded: its replies speak of them.
  AppState.AxisPattern = AppState.AxisPatternOfCt;
  AppState.CtModePending = False;
  progress.Set(kConnectSteps);
  VersionHyoji();
  return true;
}

void FailToOffline() {
  EndSession();
  if (GivenUp()) TellInStatusPanel(Text(kMsgGivenUp));
}

bool FirstConnectionSteps() {
  ProgressScope progress(Text(368), kConnectSteps, true);
  if (CtControlModeSet(0, 0, 0) != 0 || GivenUp()) return false;
  if (GetVersionNoDisp() != 0 || GivenUp()) return false;
  if (!CheckModelMarker()) return false;
  AppState.AxisCount = AppState.CtAxisDigit;
  progress.Set(1);
  if (ReadCtModeAndAxis() != 0 || GivenUp()) return false;
  TakeModeAndAxesOfCt();
  progress.Set(2);
  DispControlerMode();
  ChangeMenuDisp(AppState.CtMode);
  if (ReadCtDeviceFromCt() != 0 || GivenUp() || !DevicesOfCtCanBeTaken()) return false;
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
  return true;
}

}  // namespace

int fChangeToOnline() {
  if (TusinPortOpen() != 0) return 1;
  const CtIdentity before;
  if (Followers.SessionBegins) Followers.SessionBegins();
  const bool connected = ConnectSteps();
  if (CtIdentity() != before) Followers.AnotherController();
  if (connected && Followers.SessionStands) Followers.SessionStands();
  if (connected && !AppState.Offline) return 0;
  FailToOffline();
  return 1;
}

bool ChangeToOnlineFromCommand() { return OpenPortOrTell() && fChangeToOnline() == 0; }

bool ConnectOrOpenPort() {
  // What answers on a port that was lost may be another controller.
  return AppState.Offline || PortIsLost() ? ChangeToOnlineFromCommand() : OpenPortOrTell();
}

void ChangeToOnlineMenu() {
  const TransferScope transfer;
  static_cast<void>(ChangeToOnlineFromCommand());  // the step that failed has told the user
}

void ChangeToOfflineMenu() {
  const CommandsOff commands_off;
  if (Followers.StopBeforeTheEnd) Followers.StopBeforeTheEnd();
  if (!AppState.Offline &&
      MsgBox(Text(432), MsgButtons::OkCancel, MsgIcon::Question) != MsgAnswer::Ok) {
    return;
  }
  if (Followers.TakeBackBeforeTheEnd) Followers.TakeBackBeforeTheEnd();
  EndSession();
}

bool FirstConnection() {
  const auto muko = AppState.AxisMuko;
  AppState.Offline = AppState.HomeDone = False;
  if (FirstConnectionSteps()) return true;
  // Half a controller's state is nobody's: the offline start begins with all axes.
  AppState.AxisMuko = muko;
  AppState.AxisPattern = 0;
  FailToOffline();
  return false;
}

bool PortWatchHasWork() { return PortLampLies() || (PortIsLost() && !LineIsInUse()); }

void PortWatchTick() {
  PortLampHyoji();
  if (!PortIsLost() || LineIsInUse()) return;
  const std::string lost = LostPortText();
  // A jog that is held would run on unseen: its stop goes over a new connection.
  LetGoOfHeldButton();
  if (!AppState.Offline && !PortIsLost()) return;  // there was one, and the user knows
  FailToOffline();
  if (AppState.CommandsOffDepth == 0) AllViewsCmdYuko();
  AppState.PortFaultText = lost;
  MsgBox(TusinFailureText(TusinEnd::PortLost));
}

}  // namespace tr7
