#pragma once

#include "state/kept_work.h"

namespace tr7 {

/// How the parameters are kept: the set as a parameter file, and what the fields show over it.
KeepKind KeptParameters();

}  // namespace tr7
