#pragma once

namespace tr7 {

/// Wires the frame's menus, tool bar, buttons and lamps.
void InstallFrame();

}  // namespace tr7
