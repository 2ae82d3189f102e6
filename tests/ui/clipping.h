#pragma once

#include <string>
#include <vector>

#include "ui/bound_view.h"

namespace tr7 {

/// The controls on show whose texts do not fit into their widgets, each with text and sizes.
std::vector<std::string> ClippedTexts(const BoundView& bound);

}  // namespace tr7
