#pragma once

namespace tr7 {

/// Wires the view of the motion log and its menu command.
void InstallMotionLogView();

}  // namespace tr7
