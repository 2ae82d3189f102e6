#pragma once

#include "tests/tour/user.h"

namespace tr7::tour {

/// What went wrong on the line, found in its record behind the fault; a frame by hand.
void LookAtLine(User& user);

}  // namespace tr7::tour
