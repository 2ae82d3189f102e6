#pragma once

#include "link/port.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/kept_work.h"

namespace tr7 {

/// What every flow over the line takes for its length and gives back on every way out: the commands
/// of all views, the right to close the tool, the port. An old press of the cancel button counts no
/// more, and unsaved work is kept first: from here on nobody edits.
class TransferScope {
 public:
  TransferScope() {
    AppState.CancelRequested = False;
    if (KeepUnsavedWork) KeepUnsavedWork();
  }
  TransferScope(const TransferScope&) = delete;
  TransferScope& operator=(const TransferScope&) = delete;

 private:
  CommandsOff commands_off_;
  BusyScope busy_;
  PortClosedAfter port_closed_;
};

}  // namespace tr7
