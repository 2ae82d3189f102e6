#include "device/limits.h"

#include "device/unit_conversion.h"
#include "state/app_state.h"

namespace tr7 {

void RecalcLimits() {
  const auto told = AppState.StrokePulse;
  Culc_MaxPulse();
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis] && told[axis] > 0) AppState.StrokePulse[axis] = told[axis];
  }
  CalcMaxMm();
  CalcMaxVel();
  CalcStrokeMm();
}

}  // namespace tr7
