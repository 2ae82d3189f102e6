#pragma once

#include "steps/outcome.h"

namespace tr7 {

// The controller's tuning values, 7 blocks, all at a time. The user has been told of every failure.

/// Reads into `SysParaRead`, which stays whole on a failure.
Outcome ReadSysParaFromCt();

/// Writes `SysPara` and has the controller store it.
Outcome WriteSysParaToCt();

}  // namespace tr7
