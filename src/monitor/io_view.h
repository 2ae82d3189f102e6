#pragma once

namespace tr7 {

/// Wires the view of the monitor and the frame's commands that open it.
void InstallIoMonitor();
/// Other settings hold from now on: a view that is open takes its names and lists anew.
void FollowIoSettings();

}  // namespace tr7
