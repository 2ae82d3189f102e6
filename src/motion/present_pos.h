#pragma once

#include <cstdint>
#include <string>

#include "base/axes.h"
#include "link/tusin_wait.h"

namespace tr7 {

/// Where the axes stand as the controller said last, in pulses.
struct PresentPosRecord {
  AxisArray<std::int32_t> Pulses{};
  bool Known = false;
  bool Old = false;         ///< axes move, and no answer has come since
  std::string TrueAt;       ///< the time of day when they were read
  std::int64_t TrueUs = 0;  ///< the same on the pump's clock
};
extern PresentPosRecord PresentPos;

/// Reads the present positions and shows them in the display unit, with the position reached last.
/// 0 good, 1 failure, which the user has been told, or which `failure` takes.
int ReadnDisp_PresentPos(TusinFailure* failure = nullptr);

/// The axis of a direction button (0 to 7) stands at the end that the button leads to.
bool StandsAtEnd(int jog_button);

/// Another session: where its axes stand nobody knows yet.
void ForgetPresentPos();

/// Shows what is known, in the display unit; grey where it is old.
void ShowPresentPos();

/// While axes move: where no answer comes any more, the positions on show are old.
void LookAtPresentPosAge();

/// Behind a stop the axes are not where they were seen last: shows where they have come to rest, or
/// that nobody knows. `stand`: they are known to. The user is told of a failure, or `failure` takes
/// it.
void ShowPosBehindStop(bool stand, TusinFailure* failure = nullptr);

}  // namespace tr7
