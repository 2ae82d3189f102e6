#pragma once

#include "link/tusin_wait.h"

namespace tr7 {

// The override: the controller's inputs start no movement. It is on from the first frame that may
// have reached the controller to the one that takes it back.

/// Within a poll: sends the control mode by `chkIgnore` at a monitor's first poll, after a click,
/// and where another flow has set another one. A teaching session's own mode stays.
TusinOutcome SendOverride();

/// What has become of a monitor's request that took its failure itself: the user is told as the
/// link tells it.
TusinOutcome TellFailed(const TusinFailure& failure);

/// Whoever leaves takes it back, and the user is told. Where the line does not serve for that, the
/// next connection does it.
void TakeBackOverride();

}  // namespace tr7
