#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "sim/program_step.h"

namespace qvr7sim {

/// What a name stands for: inputs as "3", "IN3", "STB" or, as position mode calls them, "P10",
/// "EXP-IN1", "STOP", "GRP"; outputs as "OUT3"; "F3" and "R3" for all programs; "2:f3", "2:r3" and
/// "2:PR1" of program 2.
std::optional<Signal> ParseSignal(std::string_view name);

/// A value that the signal can take: 0 or 1 ("off", "on"), or a number of 32 bits.
std::optional<std::int32_t> ParseSignalValue(const Signal& signal, std::string_view text);

}  // namespace qvr7sim
