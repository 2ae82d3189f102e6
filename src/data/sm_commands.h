#pragma once

#include "steps/outcome.h"

namespace tr7 {

// Sequence macros, all 20 at a time. The user has been told of every failure.

/// Reads into `SmStage`, which stays whole on a failure.
Outcome ReadSmFromCt();

/// Writes `SmTable` and has the controller store it.
Outcome WriteSmToCt();

}  // namespace tr7
