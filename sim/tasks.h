#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sim/plant.h"
#include "sim/program_step.h"

namespace qvr7sim {

inline constexpr int kTasks = 10;        ///< Programs that run at once.
inline constexpr int kCallDepth = 8;     ///< Calls within calls.
inline constexpr int kLabels = 50;       ///< Labels of a program, from 1.
inline constexpr int kSubroutines = 20;  ///< Subroutines of a program, from 1.

/// A program as a task runs it. Indexes of steps count from 0; -1 for what is not there.
struct LoadedProgram {
  explicit LoadedProgram(const std::string& digits);

  std::vector<ProgramStep> steps;
  std::array<int, kLabels + 1> label_at{};
  std::array<int, kSubroutines + 1> subroutine_at{};
};

/// One running program.
struct Task {
  Task(int number, const std::string& digits, std::int64_t now_us)
      : program(number), code(digits), ready_us(now_us) {}

  const ProgramStep& Step() const { return code.steps[at]; }
  /// Behind the last step; the task is over when its axes rest.
  bool AtEnd() const { return at >= static_cast<int>(code.steps.size()); }

  int program;
  LoadedProgram code;
  int at = 0;                           ///< Index of the step that runs.
  int next = 1;                         ///< Index of the step behind it, as far as is known.
  int phase = 0;                        ///< How far a step that takes time has come.
  bool waiting = false;                 ///< The step has begun and is not done.
  std::int64_t ready_us;                ///< When the step begins.
  std::int64_t began_us = 0;            ///< When it began.
  std::optional<std::int64_t> wake_us;  ///< Of a waiting step: when it goes on by itself.
  std::vector<int> calls;               ///< Indexes of the steps behind the open calls.
  bool resumed = false;                 ///< Told to go on behind its pause.
  int vel = 0;                          ///< mm/s; 0: each position's own
  double rise_s = 0.0;                  ///< 0: each position's own
  unsigned step_axes = 0;               ///< Axes that the step has set in motion last.
  unsigned moving = 0;  ///< Axes that the task has set in motion and not seen at rest since.
  unsigned aside = 0;   ///< Those of them that move while the program goes on.
  Operand arrival;      ///< Goes on when `aside` rests, where it is an output or flag.
};

class Tasks;

/// A step and all that it may touch.
struct StepRun {
  Tasks& tasks;
  Plant& plant;
  Task& task;
  const ProgramStep& step;
  std::int64_t now_us;
};

/// What carrying out a step has come to.
struct StepOutcome {
  enum class Kind {
    kDone,    ///< the result goes on
    kFailed,  ///< the result goes off; the program goes on
    kWaits,   ///< asked again when anything has happened, or at the task's wake_us
    kEnds,    ///< the task is over
    kAlarm,
  };
  Kind kind = Kind::kDone;
  Alarm alarm = {};

  static StepOutcome Done() { return {Kind::kDone}; }
  static StepOutcome Result(bool on) { return {on ? Kind::kDone : Kind::kFailed}; }
  static StepOutcome Waits() { return {Kind::kWaits}; }
  static StepOutcome Ends() { return {Kind::kEnds}; }
  static StepOutcome Fails(const Alarm& alarm) { return {Kind::kAlarm, alarm}; }
  /// The main board's alarm with this code.
  static StepOutcome Fails(char code) { return Fails(Alarm{'0', '0', code}); }
};

/// Carries out steps of one command; a waiting step is asked again.
using StepCommand = StepOutcome (*)(StepRun& run);
/// The command of a code, null for a code that there is not.
StepCommand FindStepCommand(int code);

/// A step that ended its program with an alarm.
struct StepFailure {
  Alarm alarm;
  int program = 0;
  int step = 0;  ///< from 1
};

/// The programs that run, each in a slot of its own.
class Tasks {
 public:
  enum class Started { kNow, kAlready, kNoRoom };

  /// Starts a program at its first step, or lets it go on behind a pause. One without steps has
  /// ended at once.
  Started Start(Plant& plant, int program, std::int64_t now_us);
  /// Ends a program; axes that it moves brake. False where it does not run.
  bool Stop(Plant& plant, int program, std::int64_t now_us);
  void StopAll(Plant& plant, std::int64_t now_us);
  /// All tasks are gone; what the axes do is not theirs any more.
  void Drop();

  /// When a task does its next step by itself.
  std::optional<std::int64_t> NextUs() const;
  /// Something may have happened that a step waits for.
  void Poke(std::int64_t now_us) { poke_us_ = Count() > 0 ? std::optional(now_us) : std::nullopt; }
  /// Carries out the steps that are due, one of each task, up to one that fails: with its alarm all
  /// tasks have to go.
  std::optional<StepFailure> Run(Plant& plant, std::int64_t now_us);

  /// The task of a slot from 0, null where none runs.
  const Task* Slot(int slot) const { return slots_[slot] ? &*slots_[slot] : nullptr; }
  /// The task of a program, null where it does not run.
  const Task* Find(int program) const;
  int Count() const;
  /// Steps carried out since the start.
  std::int64_t StepsDone() const { return steps_done_; }

 private:
  using Slots = std::array<std::optional<Task>, kTasks>;
  std::optional<StepFailure> RunStep(Plant& plant, std::optional<Task>& slot, std::int64_t now_us);
  std::optional<StepFailure> Finish(Plant& plant, std::optional<Task>& slot,
                                    const StepOutcome& outcome, std::int64_t now_us);
  void GoOn(Plant& plant, std::optional<Task>& slot, std::int64_t now_us);
  void SeeArrival(Plant& plant, Task& task);
  std::optional<Task>* SlotOf(int program);

  Slots slots_;
  std::optional<std::int64_t> poke_us_;
  std::int64_t steps_done_ = 0;
};

}  // namespace qvr7sim
