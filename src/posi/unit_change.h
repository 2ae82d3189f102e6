#pragma once

namespace tr7 {

/// The check before another flow's change, which the user sees from the same place afterwards.
/// True: all is good.
[[nodiscard]] bool CheckInPlace();

/// Shows the table in the other unit, and that can be taken back. The check before the change has
/// committed the grid, so the pulses are exact.
void ShowInUnit(bool mm);

/// The unit alone, with its setting, the columns' titles and the lengths beside the table: the
/// cells' texts are the caller's.
void TakePosiUnit(bool mm);

}  // namespace tr7
