#pragma once

namespace tr7 {

/// Wires the print buttons of every view.
void InstallReports();

}  // namespace tr7
