#pragma once

namespace tr7 {

// Sequence macros, all 20 at a time. The user has been told of every failure.

/// Reads into `SmStage`, which stays whole on a failure. 0 or 1.
int ReadSmFromCt();

/// Writes `SmTable` and has the controller store it. 0 or 1.
int WriteSmToCt();

}  // namespace tr7
