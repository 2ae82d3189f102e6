#pragma once

namespace tr7 {

/// The monitor begins and ends. The end forgets all values.
void StartIoMonitor();
void StopIoMonitor();

/// One poll, and what follows from it; a close that was asked for is carried out here.
void timerInputOutput1_Timer();

/// A flow has taken the line, or given it back: what is on show says so.
void ShowIoPause();

/// Looks how old the values are: where no answer renews them they turn grey, with the time when
/// they were true, until one does.
void ShowIoAge();

/// The session is over: what is on show stays, grey, with the time when it was true.
void FreezeIoMonitor();

}  // namespace tr7
