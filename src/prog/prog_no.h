#pragma once

#include <optional>

#include "forms/grid.h"

namespace tr7 {

/// Asks for a program number, the one chosen last selected. None: the user has cancelled.
[[nodiscard]] std::optional<int> AskProgNo();

/// Fills a list of 101 rows and two columns with the numbers of the programs.
void ListPrograms(Grid& list);
/// Fills its second column: the steps in use where they are known, else the most that a program may
/// have.
void DispStepNo(Grid& list);

/// Wires the list of programs.
void InstallProgNo();

}  // namespace tr7
