#pragma once

namespace tr7 {

/// The check before another flow's change, which the user sees from the same place afterwards.
/// True: all is good.
[[nodiscard]] bool CheckInPlace();

/// Shows the table in the other unit. The check before the change has committed the grid, so the
/// pulses are exact.
void ShowInNewUnit();

}  // namespace tr7
