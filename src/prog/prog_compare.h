#pragma once

#include "prog/prog_store.h"

namespace tr7 {

/// `cmdProgCompare`: any two of the listing, a program of the controller and a file, step by step,
/// by what the controller would hold, and by the comments where both sides have some. What is taken
/// over can be undone.
void CompareProgram(ProgView& view);

}  // namespace tr7
