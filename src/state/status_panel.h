#pragma once

#include <string>

namespace tr7 {

/// Writes to the frame's first status panel; an alarm that stands there stays.
void TellInStatusPanel(const std::string& text);

}  // namespace tr7
