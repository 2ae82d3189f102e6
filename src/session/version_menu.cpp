#include "session/version_menu.h"

#include <string>

#include "session/session.h"
#include "session/version_check.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

std::string VersionLine(MsgId name_id, const std::string& version) {
  return "<" + Text(name_id) + ">  " + version;
}

}  // namespace

void ContVersionMenu() {
  const TransferScope transfer;
  if (!ConnectOrOpenPort()) return;
  if (GetVersionNo2() == 0) {
    std::string text = Text(426) + "\n\n" + VersionLine(427, AppState.CtVersionText);
    for (const int axis : AxesInUse()) {
      if (axis >= AppState.CtAxisDigit) break;
      text += "\n" + VersionLine(MsgId::At(1405, axis), AppState.AxisVersionText[axis]);
    }
    MsgBox(text, MsgButtons::Ok, MsgIcon::Information);
  }
}

}  // namespace tr7
