#pragma once

#include <cstdint>
#include <string>

#include "base/axes.h"
#include "link/tusin_wait.h"
#include "state/app_state.h"

namespace tr7 {

// Commands that move axes. 0 success, 1 failure; the user has been told of a failure. A start that
// a stop overtakes before it is sent, or sent again, goes out no more: it fails and nobody is told.
// Where `failure` is given it takes a failure, and nobody is told: what may move is stopped first.

/// "0MP" (or "0MS" for kind 1): moves the axes in use to a position number.
int MoveAxesToCt(int position_no, int kind, TusinFailure* failure = nullptr);
/// The frame that it sends.
std::string MoveAxesFrame(int position_no, int kind);

/// "0MG": starts a program, number in two hexadecimal digits. The time-out is 0: the wait has no
/// bound.
int StartProgToCt(int program_no);

/// "0SP": stops. `timeout_ms` 1000 or 5000. It goes out as the next frame, whatever else waits;
/// `TusinStopAgain` sends it once more while its answer stays out.
/// Nobody is told of a failure: `failure` has it.
int StopToCt(int timeout_ms, TusinFailure& failure);

/// "0JR": jogs. `speed_percent` 10 to 90 goes out divided by 10, anything else as 0;
/// `direction_code` is 2 x axis (from 0), plus 1 for the second direction. Nobody is told of a
/// failure, since a stop may have to go first: `failure` has it.
int JogStartToCt(int speed_percent, int direction_code, TusinFailure& failure);
/// The frame that it sends.
std::string JogStartFrame(int speed_percent, int direction_code);

/// One axis of a direct move.
struct DirectMoveAxis {
  bool moves = false;
  int velocity = 1;      ///< mm/s
  int acceleration = 1;  ///< 10 ms
  int position = 0;      ///< pulses
};

/// "0MV" and a field for each axis, without the tail.
std::string MoveDirectFrame(const AxisArray<DirectMoveAxis>& axes);
/// Moves axes directly. `tail` closes the frame as the kind of move asks.
int MoveDirectToCt(const AxisArray<DirectMoveAxis>& axes, const std::string& tail);
/// The same for a text that has been built before.
int MoveDirectTextToCt(const std::string& text, TusinFailure* failure = nullptr);
/// The last text that `MoveDirectToCt` sent, for repeats.
const std::string& LastMoveDirectText();
void ResetMotionCommands();

/// "0RC": present positions of the axes in use, in pulses; a small negative counts as 0.
int ReadPresentPosFromCt(AxisArray<std::int32_t>& pulses, TusinFailure* failure = nullptr);

}  // namespace tr7
