#pragma once

namespace tr7 {

/// Wires the view of the monitor and the frame's commands that open it.
void InstallIoMonitor();

}  // namespace tr7
