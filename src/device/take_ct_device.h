#pragma once

namespace tr7 {

/// Whether each present axis reports a stroke that a device can be kept with: the block has room
/// for more, and one that was never written holds anything. Where one does not, the user is told.
[[nodiscard]] bool DevicesOfCtCanBeTaken();

/// `DevSetting` and `StrokePulse` of each present axis from what the controller reported (`CtDev`).
void TakeDevFromCt();

}  // namespace tr7
