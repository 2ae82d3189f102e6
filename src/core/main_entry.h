#pragma once

#include <string>

namespace tr7 {

/// The entry routine: returns when the frame is on the screen; from then on the event queue keeps
/// the process alive. The doors are installed before.
void Main();

/// "1.00": the version as the splash and the frame show it.
std::string VersionText();

/// The first choice between online and offline, from the frame's load.
void StartOnlineOfflineChoice();

/// Wires the splash and the frame's load, close and timers.
void InstallEntry();

/// Closes the frame: every view, settings saved, process ended.
void UnloadFrame();

}  // namespace tr7
