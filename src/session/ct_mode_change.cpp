#include "device/ct_device.h"
#include "link/port.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/selection.h"
#include "state/text.h"

namespace tr7 {

void ChangeCtModeMenu() {
  const CommandsOff commands_off;
  const BusyScope busy;
  const PortClosedAfter port_closed;
  if ((AppState.Offline ? ChangeToOnlineFromCommand() : OpenPortOrTell()) != 0) return;
  const int choice =
      SelectionDialog2(Text(471), Text(476), {Text(477), Text(478)}, AppState.CtMode ? 1 : 0);
  if (choice >= 0 && ChangeCtModeToCt(choice) == 0) {
    MsgBox(Text(495) + "\n\n" + Text(496) + "\n\n" + Text(497), MsgButtons::Ok,
           MsgIcon::Information);
    // The PC's own mode stays: it changes when the tool starts again beside the restarted
    // controller. Until then the online tabs stay off.
    AppState.CtModePending = True;
  }
}

}  // namespace tr7
