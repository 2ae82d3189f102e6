#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "prog/bands.h"

namespace tr7 {

/// A cell's text taken apart.
struct CellParts {
  std::string prefix;            ///< "PR", "/I", "R", "-" and the like; empty: none
  std::int64_t ten_thousandths;  ///< the number behind it, four decimals
  std::int64_t Number() const;   ///< to the nearest whole one
};

/// Splits a trimmed, not empty text. None where the number part is no decimal number.
std::optional<CellParts> SplitCell(std::string_view text);

/// The band of a prefix; null where it names none.
const Band* BandOf(std::string_view prefix);

/// Encodes one cell of the operand, condition or result column of a command. None where its number
/// part cannot be read. What the column does not take becomes 0 without a word, and so does all
/// that stands in a column that the command has not: the check judges.
std::optional<std::int32_t> seekInputData(int code, int column, std::string_view text);

/// The condition: a reference to I, O, F or f, with "/" in front its negation, which adds 1000;
/// else 0.
std::int32_t CondToCode(const CellParts& cell);

/// The result: a reference to O, F or f. Without a prefix it is 0; another prefix gives the bare
/// number, unlike the condition.
std::int32_t ResultToCode(const CellParts& cell);

inline constexpr std::int32_t kNegated = 1000;  ///< added to a condition's code by "/"

}  // namespace tr7
