#pragma once

#include <optional>

namespace tr7 {

/// Asks for the number of a line, `first` to `last`. None: cancelled, or there is no such line,
/// which the user has been told.
std::optional<int> AskLineNumber(int first, int last);

}  // namespace tr7
