#pragma once

namespace tr7 {

/// Wires the console of the line and its menu command.
void InstallWireView();

}  // namespace tr7
