#pragma once

#include "tests/fleet/voyage.h"

namespace tr7 {

/// A user who does not wait: while flows run, whatever the screen offers is pressed, at any moment,
/// from now on and as long as `voyage.hasty` is on.
void SeatHastyHand(Voyage& voyage);

/// Some seconds of that. At its end all flows have come to theirs.
void WorkHastily(Voyage& voyage);

}  // namespace tr7
