#pragma once

namespace tr7 {

/// The points' names by the controller's mode, the user's own, and the axes in use.
void ShowPointNames();
/// Writes both tables from the bits, with what waits to be sent and what has been forced.
void IoStateHyoji2();
/// Every point shows "-".
void AllLED_Off();
/// How often the values come, how old they are, or that they come no more.
void ShowIoPace();
/// The frame says while the controller's inputs start no movement.
void ShowOverride();
/// What marks, lamps and tips of the tables are.
void WirePointTables();

}  // namespace tr7
