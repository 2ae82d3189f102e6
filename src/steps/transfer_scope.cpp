#include "steps/transfer_scope.h"

#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {

int OpenPortOrTell() {
  if (TusinPortOpen() == 0) return 0;
  MsgBox(WithReason(Text(109) + "\n\n" + Text(110), AppState.PortFaultText));
  return 1;
}

}  // namespace tr7
