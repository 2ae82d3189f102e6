#pragma once

#include <functional>

#include "steps/outcome.h"

namespace tr7 {

/// A write while the axes stand still and are held: looks whether they move, holds them, writes,
/// releases them. `Done` where all of it went well; the user has been told of everything else. What
/// a failed write has left in the controller is told behind its own boxes.
Outcome WriteHeld(const std::function<Outcome()>& write);

}  // namespace tr7
