#pragma once

namespace tr7 {

/// True when a column (1 to 27) may hold the value: ACC in its stored unit of 10 ms, "Posi" in the
/// unit on display, all others as shown.
bool FieldInRange(int col, double value);

}  // namespace tr7
