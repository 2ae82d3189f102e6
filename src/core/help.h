#pragma once

namespace tr7 {

/// Finds the manual, beside the program or in the source tree (`AppState.HelpFilePath`).
void FindHelpFile();

/// The commands of the Help menu that open the manual, and the F1 key.
void InstallHelp();

}  // namespace tr7
