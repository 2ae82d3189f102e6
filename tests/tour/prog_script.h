#pragma once

#include "tests/tour/user.h"

namespace tr7::tour {

/// A program typed, checked, saved, written, read and verified.
void EditProgram(User& user);
/// Two programs that run at once, watched in the task monitor and in a listing, and their stops.
void WatchTasks(User& user);

}  // namespace tr7::tour
