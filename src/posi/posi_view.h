#pragma once

namespace tr7 {

/// Wires the position view: its own handlers, what the frame may ask of it, its menus.
void InstallPosiView();

}  // namespace tr7
