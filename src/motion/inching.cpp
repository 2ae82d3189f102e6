#include "motion/inching.h"

#include <algorithm>
#include <cstdlib>

#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "link/motion_commands.h"
#include "motion/present_pos.h"
#include "state/app_state.h"

namespace tr7 {

std::string InchingFrame;

std::optional<std::string> BuildInchingCommand(int step, int index) {
  InchingFrame.clear();
  if (step != 1 && step != 10 && step != 100) return std::nullopt;
  const int axis = index / 2;
  const std::int32_t here = PresentPos.Pulses[axis];
  const std::int32_t wanted = here + (index % 2 == 0 ? -step : step);
  const std::int32_t target = std::clamp<std::int32_t>(wanted, 0, AppState.MaxPulse[axis]);
  // Cut to the stroke, a step from beyond it would lead far, or the other way.
  if (target == here || std::abs(target - here) > step || (target < here) != (wanted < here)) {
    return std::nullopt;
  }
  AxisArray<DirectMoveAxis> axes{};
  const int acceleration = IsD42(DevSetting[axis]) ? AppState.AccOf100Pls2 : AppState.AccOf100Pls;
  axes[axis] = {true, AppState.VelOf100Pls, acceleration, target};
  InchingFrame = MoveDirectFrame(axes);
  return InchingFrame;
}

}  // namespace tr7
