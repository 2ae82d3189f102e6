#pragma once

namespace tr7 {

/// Waits `ms` milliseconds while events are served. Not re-entrant: one timer serves all waits, so
/// a wait inside a wait starts the outer one's time anew.
void TusinWaitMs(int ms);

/// The one shot of `TusinWaitMs`: wired once at the start.
void MmsecTimerTick();

}  // namespace tr7
