#include "motion/move_prologue.h"

#include "device/ct_device.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "motion/home_state.h"
#include "motion/homing.h"
#include "motion/motion_now.h"
#include "motion/move_steps.h"
#include "session/session.h"
#include "state/app_state.h"

namespace tr7 {

bool MovePrologue(const std::function<bool()>& ended) {
  const auto given_up = [&ended] { return StopAsked() || ended(); };
  if (!ConnectOrOpenPort() || given_up() || !AxesAreAtRest() || given_up()) return false;
  if (ReadCtModeAndAxis() != 0 || ReadHomeStateFromCt() != 0) {
    TusinPortClose();
    return false;
  }
  // A controller that has lost its home says so, whatever was done before.
  if (!AppState.AllHomed) AppState.HomeDone = False;
  ShowHomeState();
  if (given_up()) return false;
  return AppState.HomeDone || GentenHukki() == 0;
}

}  // namespace tr7
