#pragma once

namespace tr7 {

/// Shows the options, modal.
void ShowOptions();

/// Positions in millimetres become pulses on the screen, and the other way round. What does not
/// come through the check keeps its unit, which the user is told.
void ChangeUnit();

/// Wires the options view.
void InstallOptionsView();

}  // namespace tr7
