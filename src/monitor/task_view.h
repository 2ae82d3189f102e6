#pragma once

namespace tr7 {

/// The frame's command: online where it is not, the programs' step counts, and the monitor.
void ShowTaskMonitor();

/// Writes what is known into the table of the tasks.
void Disp_TaskStatus();

/// Wires the view and the frame's command.
void InstallTaskMonitor();

}  // namespace tr7
