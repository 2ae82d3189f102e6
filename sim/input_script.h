#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/setup.h"

namespace qvr7sim {

/// What inputs do, one change a line: milliseconds, input (1 to 18, or a name of `ParseSignal`) and
/// value, separated by blanks. Empty lines, and what stands behind "#", count for nothing. None,
/// with what is wrong, otherwise.
std::optional<std::vector<TimedInput>> ParseInputScript(std::string_view text, std::string* error);

}  // namespace qvr7sim
