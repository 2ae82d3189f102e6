#pragma once

namespace tr7 {

// Group data, all 99 groups at a time. The user has been told of every failure.

/// Reads into `GrpStage`. 0 done, 1 failure, 2 stopped by the cancel button; the stage stays whole
/// unless it is 0.
int ReadGrpFromCt();

/// Writes `GrpTable` and has the controller store it. 0 or 1.
int WriteGrpToCt();

}  // namespace tr7
