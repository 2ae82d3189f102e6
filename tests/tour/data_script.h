#pragma once

#include "tests/tour/user.h"

namespace tr7::tour {

/// Parameters, tuning values, groups and macros, each read, changed, refused, written and verified.
void WorkOnData(User& user);

/// A tool before this one was killed: what it left unsaved is offered, and taken back.
void TakeBackWork(User& user);

}  // namespace tr7::tour
