#pragma once

namespace tr7 {

// The loaded table after devices, axes or the mode changed. All rebuild the view; what the user has
// typed and not committed stays.

/// The view in the layout of `CtMode`. A table whose mode changes under it, or that loses an axis,
/// is no more the one of its file: it loses the file's name and counts as changed.
void RebuildPosiViewKeepingEdits();

/// Checks the table against the new limits. Good: in the millimetre view the millimetres stand and
/// the pulses are recomputed from them, in the pulse view the reverse. Bad: the user has seen
/// which positions, and every cell stands as it was. True when the check was good.
bool PositionsFollowDevices();

/// The pulses stand in either view, and the millimetres follow them; but a cell that the user has
/// edited in millimetres keeps these.
void MmFollowsPulses();

}  // namespace tr7
