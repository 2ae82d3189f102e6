#pragma once

#include <functional>

namespace tr7 {

/// What stands before each move flow: online, the axes at rest, the controller's state and home
/// state, homing where it has not been done. False: the flow ends; the user has been told, or has
/// ended it: by a stop at once, or by the flow's own, of which `ended` knows.
[[nodiscard]] bool MovePrologue(const std::function<bool()>& ended);

}  // namespace tr7
