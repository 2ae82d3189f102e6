#pragma once

#include <optional>

namespace tr7 {

/// Asks for a program number, the one chosen last selected. None: the user has cancelled.
[[nodiscard]] std::optional<int> AskProgNo();

/// Fills the list's second column: the steps in use where they are known, else the most that a
/// program may have.
void DispStepNo();

/// Wires the list of programs.
void InstallProgNo();

}  // namespace tr7
