#pragma once

#include <vector>

#include "para/para_blocks.h"
#include "para/param_set.h"

namespace tr7 {

/// True when the value of this row (1 to 34), at axis 0 for a controller row, is within the range
/// that the controller takes. Some limits follow the lead of the same axis.
bool ParaRowInRange(const ParamSetRecord& set, int row, int axis);

/// What is out of its range in `ParamSet`, over the live axes and the controller rows.
std::vector<ParaCell> ParaCellsOutOfRange();

/// Range check of `ParamSet` over the live axes and the controller rows: 0 good, 1 some value is
/// out of range. Shows nothing: callers show messages 1524 and 1525.
int ParametaValueCheck();

}  // namespace tr7
