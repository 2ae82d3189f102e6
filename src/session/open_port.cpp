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

bool OpenPortOrTell() {
  if (TusinPortOpen() == 0) return true;
  EndSession();
  MsgBox(Text(109) + "\n\n" + Text(110) + "\n\n" + AppState.PortFaultText);
  return false;
}

}  // namespace tr7
