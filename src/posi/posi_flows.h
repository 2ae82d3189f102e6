#pragma once

namespace tr7 {

/// Wires the commands of the position view that open, save, write and verify.
void InstallPosiFlows();

}  // namespace tr7
