#include "motion/move_prologue.h"

#include "device/ct_device.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "motion/home_state.h"
#include "motion/homing.h"
#include "motion/move_steps.h"
#include "session/session.h"
#include "state/app_state.h"

namespace tr7 {

bool MovePrologue() {
  if (!ConnectOrOpenPort() || !AxesAreAtRest()) return false;
  if (ReadCtModeAndAxis() != 0 || ReadHomeStateFromCt() != 0) {
    TusinPortClose();
    return false;
  }
  // A controller that has lost its home says so, whatever was done before.
  if (!AppState.AllHomed) AppState.HomeDone = False;
  ShowHomeState();
  return AppState.HomeDone || GentenHukki() == 0;
}

}  // namespace tr7
