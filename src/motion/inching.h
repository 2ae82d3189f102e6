#pragma once

#include <optional>
#include <string>

namespace tr7 {

/// The frame of an inching move: `step` 1, 10 or 100 pulses from where the axis stands, towards
/// home or away from it by the button's index, cut to its stroke. Nothing where the axis would not
/// move, or farther than the step, or for another step. It is kept as `InchingFrame`.
std::optional<std::string> BuildInchingCommand(int step, int index);

/// The frame that was built last; empty: none.
extern std::string InchingFrame;

}  // namespace tr7
