#pragma once

#include <cstdint>

#include "base/axes.h"

namespace tr7 {

/// Where the axes stand as the controller said last, in pulses.
struct PresentPosRecord {
  AxisArray<std::int32_t> Pulses{};
  bool Known = false;
};
extern PresentPosRecord PresentPos;

/// Reads the present positions and shows them in the display unit, with the position reached last.
/// 0 good, 1 failure, which the user has been told.
int ReadnDisp_PresentPos();

/// Shows what is known, in the display unit.
void ShowPresentPos();

}  // namespace tr7
