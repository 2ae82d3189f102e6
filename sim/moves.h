#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "sim/plant.h"

namespace qvr7sim {

inline constexpr double kStopFall = 0.05;  ///< Seconds in which a stopped axis brakes.

/// Where one axis goes within a command that moves several.
struct AxisMove {
  bool moves = false;
  int to = 0;           ///< pulses
  int vel = 0;          ///< mm/s
  double rise_s = 0.0;  ///< to the full speed, and back to standstill
  bool pushes = false;  ///< with force
};
using AxisMoves = std::array<AxisMove, kAxes>;

/// Starts all axes of a command that stand, or none and returns why.
std::optional<Alarm> StartMoves(Plant& plant, const AxisMoves& moves, std::int64_t now_us);
/// The same for a homing of the axes in the mask.
std::optional<Alarm> StartHoming(Plant& plant, unsigned mask, std::int64_t now_us);
/// Why the axis cannot jog at all.
std::optional<Alarm> JogRefusal(const Plant& plant, int axis);
/// Runs one axis towards home or away from it: to the end of its stroke, or without that limit into
/// what is behind it. `speed` in pulses a second, above 0.
void JogAxis(Plant& plant, int axis, bool to_home, double speed, std::int64_t now_us);

}  // namespace qvr7sim
