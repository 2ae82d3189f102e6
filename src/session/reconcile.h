#pragma once

#include "state/progress.h"

namespace tr7 {

// Where the PC and the controller disagree the user decides, and one side takes over the other's
// values as a whole.

/// Compares mode and axes, and asks when the mode differs. 0: the mode agrees now. 1: the connect
/// sequence ends: no answer, a failure, or the PC's axes were written and the controller needs a
/// power cycle.
int ReconcileMode(ProgressScope& progress);

/// Who asks about devices, and what follows when the controller's are taken.
enum class DeviceReconcile {
  Connect,  ///< no cancel; the position table follows the devices
  Read,     ///< may be cancelled; the table is about to be replaced and keeps its pulses
};

/// Compares axes and devices, and asks when they differ. 0: go on (the controller's were taken, or
/// are disregarded); 1: the flow ends.
int ReconcileDevices(DeviceReconcile flow);

/// Mode and axes that the controller reported last become the PC's.
void TakeModeAndAxesOfCt();

/// In the millimetre view a device change recomputes the pulses of the loaded table: this says so
/// beforehand. False: the user would rather not (where the box offers Cancel).
bool WarnOfDeviceChange(bool may_cancel);

}  // namespace tr7
