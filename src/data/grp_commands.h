#pragma once

#include "steps/outcome.h"

namespace tr7 {

// Group data, all 99 groups at a time. The user has been told of every failure.

/// Reads into `GrpStage`, which stays whole unless all is done.
Outcome ReadGrpFromCt();

/// Writes `GrpTable` and has the controller store it.
Outcome WriteGrpToCt();

}  // namespace tr7
