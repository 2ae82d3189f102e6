#pragma once

namespace tr7 {

/// Shows the options, modal.
void ShowOptions();

/// Wires the options view.
void InstallOptionsView();

}  // namespace tr7
