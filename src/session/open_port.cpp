#include "session/open_port.h"

#include "link/port.h"
#include "link/tusin_wait.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"
#include "state/views.h"
#include "state/wait.h"

namespace tr7 {

void EndSession() {
  SetOffline();
  TusinPortCloseForce();
  AllViewsOnlineChanged();
  ChangeMenuDisp(AppState.CtMode);
}

namespace {

/// The tool stays, and a port that was lost is told of by who needs it.
bool OpensBeforeLong() {
  const BusyScope busy;
  for (int attempt = 1; attempt < kPortOpenAttempts; ++attempt) {
    TusinWaitMs(kPortOpenPauseMs);
    if (TusinPortOpen() == 0) return true;
  }
  return false;
}

}  // namespace

bool OpenPortOrTell() {
  if (TusinPortOpen() == 0 || OpensBeforeLong()) return true;
  EndSession();
  MsgBox(TusinFailureText(TusinEnd::PortFailed));
  return false;
}

}  // namespace tr7
