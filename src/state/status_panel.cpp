#include "state/status_panel.h"

#include "forms/frm_main.h"
#include "state/app_state.h"

namespace tr7 {

void TellInStatusPanel(const std::string& text) {
  // An alarm stays readable until it is cleared.
  if (!AppState.AlarmOn) frmMain.sbStatusBar.Panels[kPanelError] = text;
}

}  // namespace tr7
