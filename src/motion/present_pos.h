#pragma once

#include <cstdint>

#include "base/axes.h"
#include "link/tusin_wait.h"

namespace tr7 {

/// Where the axes stand as the controller said last, in pulses.
struct PresentPosRecord {
  AxisArray<std::int32_t> Pulses{};
  bool Known = false;
};
extern PresentPosRecord PresentPos;

/// Reads the present positions and shows them in the display unit, with the position reached last.
/// 0 good, 1 failure, which the user has been told, or which `failure` takes.
int ReadnDisp_PresentPos(TusinFailure* failure = nullptr);

/// The axis of a direction button (0 to 7) stands at the end that the button leads to.
bool StandsAtEnd(int jog_button);

/// Another session: where its axes stand nobody knows yet.
void ForgetPresentPos();

/// Shows what is known, in the display unit.
void ShowPresentPos();

}  // namespace tr7
