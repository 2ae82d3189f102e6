#include "state/busy_scope.h"

#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/frame_menus.h"
#include "state/online.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {

CommandsOff::CommandsOff() {
  ++AppState.CommandsOffDepth;
  AllViewsCmdMuko();
}

CommandsOff::~CommandsOff() {
  if (--AppState.CommandsOffDepth > 0) return;
  SettleOnlineState();
  AllViewsCmdYuko();
  // The line may have gone offline or online on the way: menus and tabs tell the truth again.
  AllViewsOnlineChanged();
  ChangeMenuDisp(AppState.CtMode);
}

BusyScope::BusyScope() : was_busy_(AppState.ComBusy) { AppState.ComBusy = True; }
BusyScope::~BusyScope() { AppState.ComBusy = was_busy_; }

bool FlowRuns() {
  const PosiTeaching& f = frmPosi.Teach;
  const bool session = AppState.TeachingNow;
  if (AppState.ComBusy || AppState.CommandsOffDepth > (session ? 1 : 0)) return true;
  return session && (!f.JogButtonsAreOn || (f.JogPending && !f.JogRunning));
}

void TellFlowRuns() {
  constexpr int kMsgBusy = 5941;
  TellInStatusPanel(Text(kMsgBusy));
  doors.forms->Beep();
}

bool FlowKeepsViewsOpen() {
  if (AppState.CommandsOffDepth == 0) return false;
  TellFlowRuns();
  return true;
}

WaitCursorScope::WaitCursorScope() { doors.forms->WaitCursor(true); }
WaitCursorScope::~WaitCursorScope() { doors.forms->WaitCursor(false); }

}  // namespace tr7
