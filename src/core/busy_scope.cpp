#include "core/busy_scope.h"

#include "core/app_state.h"
#include "core/frame_menus.h"
#include "core/session.h"
#include "core/views.h"
#include "platform/doors.h"

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
  SetOnlineTabs();
  ChangeMenuDisp(AppState.CtMode);
}

BusyScope::BusyScope() : was_busy_(AppState.ComBusy) { AppState.ComBusy = True; }
BusyScope::~BusyScope() { AppState.ComBusy = was_busy_; }

WaitCursorScope::WaitCursorScope() { doors.forms->WaitCursor(true); }
WaitCursorScope::~WaitCursorScope() { doors.forms->WaitCursor(false); }

}  // namespace tr7
