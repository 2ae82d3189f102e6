#pragma once

#include "device/device_list_file.h"

namespace tr7 {

// The device of an axis in the parameter view: lists of size, speed and stroke from the catalogue,
// each narrowed by the one before, and the device text that follows them. A device of `ParamSet`
// that the catalogue lacks stands in the lists all the same.

/// Which catalogue an axis chooses from.
DeviceListKind CatalogueOf(int axis);

/// Fills the lists and shows the device of `ParamSet`; nothing is chosen without one.
void ShowActuator(int axis);
/// Empties the lists.
void ClearActuator(int axis);
/// Takes the chosen device into `ParamSet` and `DevSettei`.
void TakeActuator(int axis);

/// Handlers of the lists.
void InstallActuatorLists();

}  // namespace tr7
