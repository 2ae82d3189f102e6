#pragma once

#include <array>
#include <cstdint>

namespace tr7 {

inline constexpr int kMacros = 20;
inline constexpr int kMacroSteps = 16;

/// One step of a sequence macro. Commands: 0 end, 1 and 2 wait for an input on or off, 3 and 4
/// output on or off, 5 timer, 6 timer times ten; 15 is a blank cell of the controller.
struct SmStep {
  std::int16_t Command = 0;
  std::int16_t Value = 0;  ///< 1 to 4, of the timers 1 to 9
  bool operator==(const SmStep&) const = default;
};

/// Macro number n stands at index n - 1, step s (from 1) at s - 1.
using SmTableRecord = std::array<std::array<SmStep, kMacroSteps>, kMacros>;

extern SmTableRecord SmTable;
/// Where data from the controller or a file lands first.
extern SmTableRecord SmStage;

}  // namespace tr7
