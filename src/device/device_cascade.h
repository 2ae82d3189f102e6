#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/bool16.h"
#include "forms/frm_device.h"
#include "state/app_state.h"

namespace tr7 {

// The lists of the two device dialogues: a size offers its speeds, a size and a speed their
// strokes, and the device whether a pulse generator may be chosen.

/// What steers the device dialogues. Callers set the `Show...` fields before a dialogue opens.
struct DeviceDialogRecord {
  Bool16 ShowDevOptions = True;  ///< the options of a device are shown
  Bool16 ShowDevCancel = True;
  Bool16 ShowDevBack;
  Bool16 DevBackPressed;
  Bool16 DevCancelled;     ///< the dialogue was left without a choice
  Bool16 DevDialogActive;  ///< a device dialogue is on the screen
  Bool16 DevWriting;       ///< it writes to the controller
};
extern DeviceDialogRecord DeviceDialog;

/// A device as one axis of a dialogue shows it.
struct ShownDevice {
  std::string Size;  ///< 3 characters, also of an old list; empty: the list is empty
  std::string Speed;
  std::int16_t Stroke = 0;  ///< mm
};
ShownDevice DeviceShown(const DeviceView& view, int axis);

/// Fills the dialogue from `DevSetting` and the catalogues. A catalogue that cannot be read is told
/// of once, and the lists stay empty.
void LoadDeviceLists(DeviceView& view);

/// The axes whose boxes are ticked are wanted: AXIS1 up to the chosen number, unless the user has
/// left axes in use that have a gap as they were.
AxisArray<Bool16> MukoShown(const DeviceView& view);
/// Axes below `count` (1 to 4) are in use in the dialogue, the others not.
void ShowAxesInUse(DeviceView& view, int count);

/// Sets the handlers of the dialogue's lists and boxes.
void InstallDeviceCascade(DeviceView& view);

}  // namespace tr7
