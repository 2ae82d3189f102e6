#pragma once

namespace tr7 {

/// Wires the view of the system parameters and its menu.
void InstallSysParaView();

}  // namespace tr7
