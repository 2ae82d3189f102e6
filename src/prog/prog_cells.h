#pragma once

#include <string>

#include "forms/grid.h"

namespace tr7 {

// How the cells of a listing are shown.

/// What a step is to the jumps and calls of its program.
RowMark MarkOfRow(const Grid& listing, int row);

/// True where the step's command does not use the column.
bool IsUnusedCell(const Grid& listing, int row, int column);

/// Why the cell does not become what it says; empty where it does.
std::string FaultOfCell(const Grid& listing, int row, int column);

/// For the status bar: what the current cell takes, what is wrong with it, what its command does.
std::string HintText(const Grid& listing);

}  // namespace tr7
