#pragma once

namespace tr7 {

/// Wires the group view and its menu.
void InstallGrpView();

}  // namespace tr7
