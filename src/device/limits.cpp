#include "device/limits.h"

#include "device/unit_conversion.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"

namespace tr7 {

void RecalcLimits() {
  const auto told = AppState.StrokePulse;
  Culc_MaxPulse();
  for (const int axis : AxesInUse()) {
    if (told[axis] > 0) AppState.StrokePulse[axis] = told[axis];
  }
  CalcMaxMm();
  CalcMaxVel();
  CalcStrokeMm();
}

}  // namespace tr7
