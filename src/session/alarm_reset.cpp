#include "session/alarm_reset.h"

#include "forms/frm_main.h"
#include "link/status_commands.h"
#include "session/open_port.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/online.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

/// True when the controller took the reset.
bool ResetAlarm() {
  if (AlarmResetToCt() == 0) return true;
  if (AppState.AlarmNotResettable) MsgBox(TwoLines(324, 325));
  return false;
}

void ClearAlarmDisplay() {
  frmMain.imgAlarm.Visible = false;
  AppState.AlarmOn = False;
  frmMain.sbStatusBar.Panels[kPanelError].clear();
}

/// True when the line is online at the end; the step that fails has told the user.
bool ResetAndConnect() {
  if (!OpenPortOrTell() || !ResetAlarm()) return false;
  ClearAlarmDisplay();
  if (CtComStart() != 0) return false;
  return fChangeToOnline() == 0;
}

}  // namespace

void AlarmReset() {
  const TransferScope transfer;
  LiftOffline();
  const bool online = ResetAndConnect();
  // Where no good reply has confirmed it, the line is not online.
  if (!online && AppState.OfflineTemporarilyLifted) SetOffline();
  AppState.OfflineTemporarilyLifted = False;
}

}  // namespace tr7
