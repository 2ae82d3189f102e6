#pragma once

#include <string>

#include "forms/control.h"
#include "forms/grid.h"

namespace tr7::tour {

// What controls are called in the report of a failure.

inline std::string NameOf(const Control& control) {
  return control.Owner->Name + ("." + control.Name);
}

inline std::string CellName(const Grid& grid, int row, int col) {
  return NameOf(grid) + " row " + std::to_string(row) + " column " + std::to_string(col);
}

}  // namespace tr7::tour
