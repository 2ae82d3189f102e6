#pragma once

#include "tests/tour/user.h"

namespace tr7::tour {

/// Parameters, tuning values, groups and macros, each read, changed, refused, written and verified.
void WorkOnData(User& user);

}  // namespace tr7::tour
