#pragma once

namespace tr7 {

/// Wires the macro view and its menu.
void InstallSmView();

}  // namespace tr7
