#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/faults.h"

namespace qvr7sim {

/// Parts between separators; separators in a row count as one.
std::vector<std::string> Split(std::string_view text, std::string_view separators);
/// A whole decimal number, or a hexadecimal one behind "0x", within low to high.
std::optional<std::int64_t> ParseNumber(std::string_view text, std::int64_t low, std::int64_t high);
/// A decimal fraction within low to high.
std::optional<double> ParseFraction(std::string_view text, double low, double high);
/// Unit and code as one character each, unit '0' to '4'.
std::optional<Alarm> ParseAlarm(std::string_view unit, std::string_view code);

/// A fault as text: its name, then settings such as "p=0.1", "n=3", "prefix=0RP", "ms=200",
/// "byte=4", "unit=1", "middle=0", "code=2", separated by commas or blanks. With neither p nor n it
/// strikes the next matching request. On failure `error` says what is wrong.
std::optional<Fault> ParseFault(std::string_view text, std::string* error);

}  // namespace qvr7sim
