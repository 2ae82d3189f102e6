#pragma once

#include <vector>

#include "tests/tour/user.h"

namespace tr7::tour {

/// One start of the tool, from the splash to its end, beside a simulated controller of its own. It
/// is played once in each language.
struct Script {
  const char* name;
  QStringList sim_options;  ///< as on the command line of qv-r7-sim
  void (*run)(User& user);
};

const std::vector<Script>& Scripts();

/// Parameters, tuning values, groups and macros, each read, changed, refused, written and verified.
void WorkOnData(User& user);
/// A tool before this one was killed: what it left unsaved is offered, and taken back.
void TakeBackWork(User& user);
/// The monitor in program mode: names, an output forced, the override, lists and plot while a
/// program runs.
void WatchProgram(User& user);
/// The same in position mode, while the inputs start a move.
void WatchHandshake(User& user);
/// Homing, moves of each kind, a jog, an inch, a take, and what stops them.
void MoveAndTeach(User& user);
/// A program runs on the controller: no teaching.
void BeRefusedByAProgram(User& user);
/// Each report in the preview and in a file: positions, parameters, groups and macros, and in
/// program mode its positions and a program.
void PrintData(User& user);
void PrintPrograms(User& user);
/// A program typed, checked, saved, written, read and verified.
void EditProgram(User& user);
/// What went wrong on the line, found in its record behind the fault; a frame by hand.
void LookAtLine(User& user);
/// Two programs that run at once, watched in the task monitor and in a listing, and their stops.
void WatchTasks(User& user);

}  // namespace tr7::tour
