#pragma once

namespace tr7 {

/// Stops the axes: "0SP" as the next frame, `timeout_ms` for each send. Where it stays unanswered
/// or is refused, once more over a new connection; where that fails too, the user is told that an
/// axis may be moving still, and the lamp stays on. True: the controller has taken the stop.
bool StopAxes(int timeout_ms);

/// The red button and Escape: stops what this tool has set in motion, at once. The flow that did so
/// ends and keeps its place. False: nothing of this tool's moves.
bool StopAtOnce();

/// Whoever ends the session while something moves stops it first.
void StopBeforeTheEnd();

}  // namespace tr7
