#pragma once

namespace tr7 {

/// Asks in `frmDevice3`; the devices chosen come into use with the parameters of the standard
/// lists. 0 done; 1 failed after a message; -1 cancelled. Only 0 changes anything, and a write to
/// the controller that the user has made from there.
int SelectDevice3();

/// The offline start: the stored devices come into use, and the user may choose others. Whoever
/// leaves the dialogue goes on with the stored ones; while there are none, messages 4 and 5 bring
/// it back, until it has been left twice or there is no catalogue to choose from.
void SelectDevicesAtStart();

/// Wires the device dialogues and the menu that opens the one which writes.
void InstallDeviceChoice();

}  // namespace tr7
