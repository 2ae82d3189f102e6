#pragma once

#include <array>

namespace tr7 {

/// An axis of the simulated machine at one moment.
struct SimAxis {
  bool in_use = false;
  bool moving = false;
  bool homed = false;
  bool servo_on = false;
  int pulses = 0;      ///< where the slide stands; below 0: on the far side of home
  int max_pulses = 0;  ///< the other end of the stroke
  double pulses_per_mm = 0.0;

  bool operator==(const SimAxis&) const = default;
};

inline constexpr int kSimInputs = 18, kSimOutputs = 16;

/// The inputs and outputs of the simulated machine at one moment, number n at index n - 1.
struct SimPoints {
  std::array<bool, kSimInputs> inputs{};
  std::array<bool, kSimOutputs> outputs{};

  bool operator==(const SimPoints&) const = default;
};

}  // namespace tr7
