#pragma once

#include "tests/tour/user.h"

namespace tr7::tour {

/// A program typed, checked, saved, written, read and verified.
void EditProgram(User& user);

}  // namespace tr7::tour
