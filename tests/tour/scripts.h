#pragma once

#include "tests/tour/session.h"

namespace tr7::tour {

// The scripts, one a file.

/// From the splash to a table read from the controller; a controller that is silent, and an alarm.
void FirstLook(Tour& tour);
/// The same windows in Japanese.
void JapaneseLook(Tour& tour);

/// The day of a position table: read, edit, check, save, write, verify, open again.
void MainJob(Tour& tour);
/// The same in short with a controller in program mode.
void ProgramModeJob(Tour& tour);
/// A start offline, with its mode and its devices, and other devices later on.
void OfflineDevices(Tour& tour);
/// The parameters that follow from devices chosen offline, and a controller that differs in mode
/// and devices.
void ParametersAndReconcile(Tour& tour);

}  // namespace tr7::tour
