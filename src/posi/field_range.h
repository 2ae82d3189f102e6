#pragma once

#include <string>

namespace tr7 {

/// True when a column (1 to 27) may hold the value: ACC in its stored unit of 10 ms, "Posi" in the
/// unit on display, all others as shown.
bool FieldInRange(int col, double value);

/// The same for the text of a cell, a position's without its sign; an empty cell is not good.
bool CellInRange(int col, const std::string& text);

/// The stored form of an ACC cell: tens of milliseconds, a whole number.
double StoredAcc(const std::string& cell);

}  // namespace tr7
