#pragma once

#include <optional>

namespace tr7 {

/// Asks for the number of a line, `first` to `last`. It asks on where there is no such line, after
/// telling so. None: cancelled, or left empty.
std::optional<int> AskLineNumber(int first, int last);

}  // namespace tr7
