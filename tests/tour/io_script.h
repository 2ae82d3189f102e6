#pragma once

#include "tests/tour/user.h"

namespace tr7::tour {

/// The monitor in program mode: names, an output forced, the override, lists and plot while a
/// program runs.
void WatchProgram(User& user);
/// The same in position mode, while the inputs start a move.
void WatchHandshake(User& user);

}  // namespace tr7::tour
