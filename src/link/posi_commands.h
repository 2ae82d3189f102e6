#pragma once

#include <string>

#include "link/tusin_wait.h"

namespace tr7 {

/// "0RP": reads one record; `reply` is the whole line with CR LF.
TusinOutcome ReadPosiRecordFromCt(int number, std::string& reply);
/// Sends one "0WP" line; `reply` echoes command and number.
TusinOutcome WritePosiRecordToCt(const std::string& line, std::string& reply);
/// "0WA": stores the written range in the controller. 0 success, 1 failure.
int PosiWriteCommitToCt(int first, int last);

}  // namespace tr7
