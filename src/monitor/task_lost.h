#pragma once

#include <string>

#include "link/exchange.h"

namespace tr7 {

/// What a failure's box says besides while programs were running: behind an alarm which, and at
/// which steps; else that they may go on. The buttons show that the line has failed.
std::string WordsOfTasks(TusinEnd end);

}  // namespace tr7
