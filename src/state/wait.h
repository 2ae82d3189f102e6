#pragma once

namespace tr7 {

/// Waits `ms` (above 0) milliseconds while events are served. A wait inside a wait takes its own
/// time.
void TusinWaitMs(int ms);

}  // namespace tr7
