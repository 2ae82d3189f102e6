#include "core/version_check.h"

#include "core/app_state.h"
#include "core/busy_scope.h"
#include "core/frame_menus.h"
#include "core/message_box.h"
#include "core/session.h"
#include "core/text.h"
#include "forms/frm_main.h"
#include "link/port.h"
#include "link/status_commands.h"

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

std::string VersionLine(int name_id, const std::string& version) {
  return "<" + Text(name_id) + ">  " + version;
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

void ContVersionMenu() {
  const CommandsOff commands_off;
  const BusyScope busy;
  const PortClosedAfter port_closed;
  if (AppState.Offline ? ChangeToOnlineFromCommand() != 0 : OpenPortOrTell() != 0) return;
  if (GetVersionNo2() == 0) {
    std::string text = Text(426) + "\n\n" + VersionLine(427, AppState.CtVersionText);
    for (int axis = 0; axis < kAxes; ++axis) {
      const auto index = static_cast<std::size_t>(axis);
      if (AppState.AxisMuko[index] || axis >= AppState.CtAxisDigit) continue;
      text += "\n" + VersionLine(1405 + axis, AppState.AxisVersionText[index]);
    }
    MsgBox(text, MsgButtons::Ok, MsgIcon::Information);
  }
}

}  // namespace tr7
