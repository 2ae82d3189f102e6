#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "link/tusin_wait.h"

namespace tr7 {

inline constexpr int kInputDigits = 7, kOutputDigits = 5, kIoDigitBits = 4;
inline constexpr int kIoPoints = kInputDigits * kIoDigitBits;

/// One place a point of a reply: bit times 7 plus digit.
using IoBits = std::array<bool, kIoPoints>;
constexpr int IoPoint(int digit, int bit) { return bit * kInputDigits + digit; }

// The link has told the user of a failure. A value that is none has come as no number.

/// "0RI" and "0RO": all inputs and outputs. Both tables are cleared first. On failure the port
/// closes.
TusinOutcome ReadIoFromCt(IoBits& inputs, IoBits& outputs);
/// "0WO": the whole word of outputs.
TusinOutcome WriteOutputToCt(const IoBits& outputs);

// Program 0 names what is common to all programs.

/// "0FR": on for anything but "0".
TusinOutcome ReadFlagFromCt(int program, int number, std::optional<std::int32_t>& value);
/// "0HR": 32 bits in two's complement.
TusinOutcome ReadHensuFromCt(int program, int number, std::optional<std::int32_t>& value);
/// "0HP": the same, in thousandths.
TusinOutcome ReadPosHensuFromCt(int program, int number, std::optional<std::int32_t>& value);

}  // namespace tr7
