#include "device/ct_device.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/selection.h"
#include "state/text.h"
#include "steps/transfer_scope.h"

namespace tr7 {

void ChangeCtModeMenu() {
  const TransferScope transfer;
  if (!ConnectOrOpenPort()) return;
  const Selection choice = SelectionDialog2({.Title = Text(471),
                                             .What = 7186,
                                             .Prompt = Text(476),
                                             .Choices = {Text(477), Text(478)},
                                             .Preselected = AppState.CtMode ? 1 : 0});
  if (choice == Selection::Cancelled) return;
  if (ChangeCtModeToCt(choice == Selection::First ? 0 : 1) == 0) {
    MsgBox(Text(495) + "\n\n" + Text(496) + "\n\n" + Text(497), MsgButtons::Ok,
           MsgIcon::Information);
    // The PC's own mode stays: it changes when the tool starts again beside the restarted
    // controller. Until then the online tabs stay off.
    AppState.CtModePending = True;
  }
}

}  // namespace tr7
