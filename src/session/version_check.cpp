#include "session/version_check.h"

#include "forms/frm_main.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "state/app_state.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"

namespace tr7 {
namespace {

int ShowVersion(int result) {
  if (result == 0) {
    VersionHyoji();
  } else {
    frmMain.sbStatusBar.Panels[kPanelError] = Text(415);
  }
  return result;
}

}  // namespace

void VersionHyoji() {
  frmMain.sbStatusBar.Panels[kPanelError] = Text(416) + AppState.CtVersionText;
}

int GetVersionNoDisp() { return ShowVersion(GetVersionNo()); }

int GetVersionNo2() {
  if (GetVersionNo() != 0) return ShowVersion(1);
  return ShowVersion(GetAxisVersionNo(AppState.CtAxisDigit));
}

bool CheckModelMarker() {
  const std::string& marker = AppState.CtModelMarker;
  if (marker == "R1M" || marker == "R2M" || marker == "R3M" || marker == "R4M") return true;
  TusinPortCloseForce();
  SetOffline();
  ChangeMenuDisp(AppState.CtMode);
  MsgBox(TwoLines(124, 125));
  return false;
}

}  // namespace tr7
