#pragma once

#include <functional>
#include <string>
#include <vector>

#include "report/table.h"

namespace tr7 {

/// Positions to print: texts by column and number as the table holds them.
struct PosiRows {
  std::vector<int> Numbers;
  int AxisMask = 0;  ///< axes in use
  bool Mm = false;   ///< lengths are in millimetres, else in pulses
  std::function<std::string(int col, int number)> Cell;
};

// The reports of the two modes. Each takes its texts at once.
PrintJob PrintPosiTable(const PosiRows& rows, const SheetHead& head);
PrintJob PrintPosiTablePrg(const PosiRows& rows, const SheetHead& head);

}  // namespace tr7
