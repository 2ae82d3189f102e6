#include "session/version_menu.h"

#include <string>

#include "link/port.h"
#include "session/session.h"
#include "session/version_check.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

std::string VersionLine(MsgId name_id, const std::string& version) {
  return "<" + Text(name_id) + ">  " + version;
}

}  // namespace

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
      text += "\n" + VersionLine(MsgId::At(1405, axis), AppState.AxisVersionText[index]);
    }
    MsgBox(text, MsgButtons::Ok, MsgIcon::Information);
  }
}

}  // namespace tr7
