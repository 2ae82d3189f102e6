#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "sim/plant.h"
#include "sim/tasks.h"

namespace qvr7sim {

/// The controller behind its line: the plant, the programs that run, and what answers requests.
struct Machine : Plant {
  explicit Machine(const Setup& start);

  /// Reply to a request, both without line end. Time must not run back.
  std::string Answer(const std::string& request, std::int64_t now_us);
  /// Brings moves to their end and carries out program steps, in the order of time; a failed homing
  /// raises its alarm.
  void Settle(std::int64_t now_us);
  void Raise(const Alarm& raised, std::int64_t now_us);
  void PowerCycle(std::int64_t now_us);
  /// When a move ends, an input changes, or a program or a macro does a step.
  std::optional<std::int64_t> NextInsideUs() const;
  /// Input 1 to 21.
  void SetInput(int number, bool on, std::int64_t now_us);
  /// The same for whatever stands in `values`.
  void Set(const Signal& signal, std::int32_t value, std::int64_t now_us);
  /// When all axes rest, the outputs of the position that was moved to go on and off, and its macro
  /// begins.
  void SeeArrival(std::int64_t now_us);
  /// Carries out the macro's steps that are due.
  void PlayMacro(std::int64_t now_us);
  /// When the next axis comes to rest; where a macro runs, when it ends as the inputs stand.
  std::optional<std::int64_t> NextRestUs() const;
  /// Programs run in program mode alone; false elsewhere, and where no task is free.
  bool StartProgram(int program, std::int64_t now_us);
  /// The inputs start every axis in use that the PC does not hold; a move of about `time_us`.
  void MoveByInputs(std::int64_t time_us, std::int64_t now_us);
  /// Marks what the axes have moved until now: a stop has arrived.
  void NoteStop(std::int64_t now_us);
  /// The digits of "0CM": an axis whose servo goes off while it moves is lost.
  void TakeControl(std::string_view digits, std::int64_t now_us);
  /// The servo of an axis fails: it can be pushed, and all axes stop with the alarm.
  void LoseServo(int axis, std::int64_t now_us);
  /// Moves axes of the mask to a stored position, number 0 to home. `with_macro`: its macro runs
  /// when they have arrived. Why not, where they do not start.
  std::optional<Alarm> MoveToPosition(int number, unsigned mask, bool with_macro,
                                      std::int64_t now_us);
  Tasks tasks;

 private:
  /// An input has gone on: RES resets the alarm; in position mode STB starts the move to the number
  /// that stands on the inputs, and STOP and PAUSE brake.
  void InputWentOn(int number, std::int64_t now_us);
  void StartByInputs(std::int64_t now_us);
  /// When the macro goes on by itself.
  std::optional<std::int64_t> MacroStepEndUs() const;

  std::size_t inputs_done_ = 0;  // of the setup's, which are in the order of time
};

/// The text of an error reply without line end.
std::string ErrorText(const Alarm& error);
/// The same for unit, middle '0' and code.
std::string ErrorText(char unit, char code);

/// A command: its three characters and what answers it. `args` is what follows them.
struct Command {
  std::string_view name;
  std::string (*answer)(Machine& machine, std::string_view args, std::int64_t now_us);
  bool commits = false;           ///< Takes the commit time.
  bool needs_standstill = false;  ///< Refused while an axis moves.
};

std::span<const Command> StatusCommands();
std::span<const Command> MotionCommands();
std::span<const Command> PositionCommands();
std::span<const Command> BlockCommands();
std::span<const Command> ProgramCommands();
std::span<const Command> MonitorCommands();
/// The command that a request begins with, or null.
const Command* FindCommand(std::string_view request);

}  // namespace qvr7sim
