#pragma once

#include "link/tusin_wait.h"

namespace tr7 {

/// Stops the axes: "0SP" as the next frame, `timeout_ms` for each send. Where it stays unanswered
/// or is refused, once more over a new connection, which begins another session; where that fails
/// too, the user is told of the alarm that refuses it, or that an axis may be moving still, and the
/// lamp stays on. True: the controller has taken the stop.
bool StopAxes(int timeout_ms);

/// A stop has been taken: the red button stays on until the axes stand, which is to be soon. False
/// where that was not heard of; `failure` as with a poll.
bool WaitForBraking(TusinFailure* failure = nullptr);

/// A start that failed may have been taken all the same where its answer was lost. Only the refusal
/// of the one that was sent says that nothing moves: a second one is refused because the first
/// does.
bool MayHaveStarted(const TusinFailure& failure);

/// A start or a poll has failed, and the axes may move unheard of: they are stopped before the user
/// is told of the failure. Its words say so where the stop was taken. The motion has ended then.
void StopUnheard(TusinFailure& failure);

/// The red button and Escape: stops what this tool has set in motion, at once, and keeps back what
/// is on its way to a motion. While a stop stays unanswered, each press sends it once more. The
/// flow that did so ends and keeps its place. False: there is nothing to stop.
bool StopAtOnce();

/// Whoever ends the session while something moves, or may do so, stops it first.
void StopBeforeTheEnd();

/// The user closes the tool: what moves is stopped ahead of any question. True: its flow has to
/// end, and closes then.
[[nodiscard]] bool StopBeforeClosing();

}  // namespace tr7
