#pragma once

#include <optional>
#include <utility>

namespace qvr7sim {

/// What programs have set for an axis since power-on.
struct AxisSettings {
  int push_force = 0;                       ///< percent; 0 moves without pushing
  int push_speed = 0;                       ///< percent of the move's speed, 0 all of it
  std::optional<std::pair<int, int>> zone;  ///< bounds in pulses, in place of the parameters'
};

}  // namespace qvr7sim
