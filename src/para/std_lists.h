#pragma once

namespace tr7 {

/// Reads the standard list of each axis whose pending series is "QV" into `StdTable` (which of the
/// two follows its pending type) and the common list into `CommonTable`. 0; 1 after a message, or
/// silently, with `ParaFlags.FileFaultText`, when the common list has another section than the one
/// due.
int ReadStdLists();

/// Fills the whole of `ParamSet` for the devices in `DevSettei`. 0; 1 after a message: an axis
/// whose device has no standard row keeps its values beside new common ones.
int IniParaFromStd();

/// The same for the device dialogue's direct write, which leaves the order of homing, AUTODRIVE,
/// AXIS and most of the common rows as the controller has them.
int IniParaFromStdForWrite();

/// Range check of what `IniParaFromStdForWrite` sets: false when some value is out of range.
[[nodiscard]] bool CheckStdRows();
/// The same, with the controller's own zone, output, group and macro rows.
int CheckParaFromStd();

}  // namespace tr7
