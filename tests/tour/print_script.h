#pragma once

#include "tests/tour/user.h"

namespace tr7::tour {

/// Each report in the preview and in a file: positions, parameters, groups and macros, and in
/// program mode its positions and a program.
void PrintData(User& user);
void PrintPrograms(User& user);

}  // namespace tr7::tour
