#pragma once

#include "posi/file_devices.h"

namespace tr7 {

/// The open flow: asks for a position file and replaces the table by it, where the user wants with
/// the devices that it was made for. On every failure table, name and devices are as they were.
void PosidataFileOpen();

/// What was read into the stage becomes the table and is shown, by these devices.
void ShowPosiStage(FileDevices devices);

}  // namespace tr7
