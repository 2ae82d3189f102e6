#pragma once

#include <string>

#include "base/axes.h"
#include "base/indexed_array.h"
#include "para/param_set.h"
#include "report/table.h"

namespace tr7 {

/// Parameters to print: the text of each row (1 to 34) of an axis, or of the controller at axis 0.
struct ParaRows {
  IndexedArray<AxisArray<std::string>, std::size_t{kParaRows} + 1> Texts;
  int AxisMask = 0;  ///< axes that there are
};

PrintJob PrintParaTable(const ParaRows& rows, const SheetHead& head);

}  // namespace tr7
