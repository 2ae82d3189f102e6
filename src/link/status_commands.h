#pragma once

#include <cstdint>

#include "link/tusin_wait.h"

namespace tr7 {

// Commands on the controller's state. 0 success, 1 failure, unless told otherwise; the exchange has
// told the user of a failure.

/// "0CM1": puts the controller under the PC's command; every sequence starts with it. The state
/// goes online on success and offline on failure. Axes that an earlier write could not release are
/// released at once. `show_message` 1 tells the user of a failure.
int CtComStart(int show_message = 1);

/// "0CM": `m` 0, 1 or 2 (anything else becomes 0), then a digit per axis: `mode` where it is 1 or
/// 2, the axis is in use and its bit (axis i: 1 << i) stands in `mask`, else 0. Lifts the offline
/// state. Where `failure` is given it takes a failure, and nobody is told.
int CtControlModeSet(int mode, int m, int mask, TusinFailure* failure = nullptr);

/// "0RA": 1 all axes stand still, 0 an axis moves, -1 failure. Where `failure` is given it takes a
/// failure, and nobody is told.
int ReadAlarmFromCt(TusinFailure* failure = nullptr);

/// "0RH": sets `AllHomed`.
int ReadHomeStateFromCt();

/// "0AR": resets the alarm; the port closes on failure.
int AlarmResetToCt();

/// "0RV": opens the port, puts the controller under command and reads version, model marker and
/// axis digit into `AppState`.
int GetVersionNo();
/// The same into nothing shared: the axis digit, -1 on failure.
int GetVersionNoAxis();
/// "0RV" and the axis number: versions of the axis boards 1 to `axis_count`.
int GetAxisVersionNo(int axis_count);

}  // namespace tr7
