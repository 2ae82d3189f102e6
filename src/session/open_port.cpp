#include "session/open_port.h"

#include "link/port.h"
#include "state/app_state.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {

void EndSession() {
  SetOffline();
  TusinPortCloseForce();
  AllViewsOnlineChanged();
  ChangeMenuDisp(AppState.CtMode);
}

int OpenPortOrTell() {
  if (TusinPortOpen() == 0) return 0;
  EndSession();
  MsgBox(Text(109) + "\n\n" + Text(110) + "\n\n" + AppState.PortFaultText);
  return 1;
}

}  // namespace tr7
