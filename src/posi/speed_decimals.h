#pragma once

#include <string>

namespace tr7 {

// A speed may be given with decimals, which the table and its file keep. They do not travel: the
// controller holds the whole part, and a verification against it differs.

/// What the user is told of a cell's text that loses decimals; empty: it loses none.
std::string SpeedDecimalsNote(int col, const std::string& text);

/// The loaded positions with a speed that loses decimals, by number, the first ten of them; empty:
/// none.
std::string PositionsWithSpeedDecimals();

}  // namespace tr7
