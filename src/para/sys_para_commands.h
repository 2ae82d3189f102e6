#pragma once

namespace tr7 {

// The controller's tuning values, 7 blocks, all at a time. The user has been told of every failure.

/// Reads into `SysParaRead`, which stays whole on a failure. 0 or 1.
int ReadSysParaFromCt();

/// Writes `SysPara` and has the controller store it. 0 or 1.
int WriteSysParaToCt();

}  // namespace tr7
