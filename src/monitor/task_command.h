#pragma once

#include "link/tusin_wait.h"

namespace tr7 {

// What the buttons leave, and what becomes of it. No button talks to the controller by itself.

/// `cmdStartTask_Click` and its like: nothing where no program is chosen.
void cmdStartTask_Click();
void cmdStopTask_Click();
void cmdStopAllTask_Click();

/// Sends the start or stop of a program that was left, within a poll. Good where there was none.
/// The user is told in the status panel what became of it.
TusinOutcome SendTaskCommand();

/// A stop of all programs does not wait for a poll's turn: it goes out as the next frame.
bool StopAllWaits();
void SendStopAll();

/// The poll behind a command shows whether the program runs as it should, which is told.
void TellWhatCameOfIt();

/// The view closes, or its polls are given up: a stop that was left goes out where the line serves,
/// a start does not. A stop that was not taken is told by a box: the panel is emptied with the
/// view.
void SettleTaskCommand();

}  // namespace tr7
