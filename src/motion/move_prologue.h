#pragma once

namespace tr7 {

/// What stands before each move flow: online, the axes at rest, the controller's state and home
/// state, homing where it has not been done. False: the flow ends; the user has been told.
[[nodiscard]] bool MovePrologue();

}  // namespace tr7
