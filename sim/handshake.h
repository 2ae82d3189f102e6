#pragma once

#include <cstdint>
#include <optional>

#include "sim/machine.h"

namespace qvr7sim {

/// Moves axes of the mask to a stored position, number 0 to home. `with_macro`: its macro runs when
/// they have arrived. Why not, where they do not start.
std::optional<Alarm> MoveToPosition(Machine& machine, int number, unsigned mask, bool with_macro,
                                    std::int64_t now_us);

}  // namespace qvr7sim
