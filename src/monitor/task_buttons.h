#pragma once

namespace tr7 {

/// The program that the buttons mean; 0: none is chosen.
int ChosenProgram();

/// Which buttons are on. The stop of all programs is on while any may run, whatever has the line,
/// but not where it has failed: then the user is being told.
void ShowTaskButtons();

}  // namespace tr7
