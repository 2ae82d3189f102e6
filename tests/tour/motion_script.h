#pragma once

#include "tests/tour/user.h"

namespace tr7::tour {

/// Homing, moves of each kind, a jog, an inch, a take, and what stops them.
void MoveAndTeach(User& user);
/// A program runs on the controller: no teaching.
void BeRefusedByAProgram(User& user);

}  // namespace tr7::tour
