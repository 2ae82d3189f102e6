#pragma once

#include <string>

#include "para/param_set.h"

namespace tr7 {

/// The value of a row (1 to 34) as its field in the parameter view says it: a number, the entry of
/// a list, the caption of an option, the device text. A value without an entry is told as a number.
std::string ParaValueText(const ParamSetRecord& set, int row, int axis);

}  // namespace tr7
