#pragma once

#include <cstdint>

#include "base/axes.h"
#include "base/bool16.h"
#include "para/param_set.h"
#include "state/app_state.h"

namespace tr7 {

/// Axes that a flow takes from the controller go back to those before, unless it comes to its end:
/// without their devices and parameters they would be nobody's.
class AxesOnTrial {
 public:
  AxesOnTrial() = default;
  ~AxesOnTrial() {
    if (kept_) return;
    AppState.AxisMuko = muko_;
    AppState.AxisPattern = pattern_;
    ParaFlags.ShownAxisCount = shown_count_;
  }
  AxesOnTrial(const AxesOnTrial&) = delete;
  AxesOnTrial& operator=(const AxesOnTrial&) = delete;
  void Keep() { kept_ = true; }
  /// True when the flow has changed the axes so far.
  bool Changed() const { return AppState.AxisMuko != muko_; }

 private:
  AxisArray<Bool16> muko_ = AppState.AxisMuko;
  std::int16_t pattern_ = AppState.AxisPattern, shown_count_ = ParaFlags.ShownAxisCount;
  bool kept_ = false;
};

}  // namespace tr7
