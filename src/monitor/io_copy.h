#pragma once

#include <string>

namespace tr7 {

/// Points, positions and lists as they stand on the screen, a line each, with tabs between.
std::string IoMonitorAsText();

}  // namespace tr7
