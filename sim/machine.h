#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "sim/axes.h"
#include "sim/memory.h"
#include "sim/motion_start.h"
#include "sim/setup.h"

namespace qvr7sim {

/// The controller behind its line: what it keeps, what moves, what stands.
struct Machine {
  explicit Machine(const Setup& start);

  /// Reply to a request, both without line end. Time must not run back.
  std::string Answer(const std::string& request, std::int64_t now_us);
  /// Brings moves to their end; a failed homing raises its alarm.
  void Settle(std::int64_t now_us);
  void Raise(const Alarm& raised, std::int64_t now_us);
  void PowerCycle(std::int64_t now_us);
  /// The inputs start every axis in use that the PC does not hold; a move of about `time_us`.
  void MoveByInputs(std::int64_t time_us, std::int64_t now_us);
  /// Marks what the axes have moved until now: a stop has arrived.
  void NoteStop(std::int64_t now_us);
  /// The digits of "0CM": an axis whose servo goes off while it moves is lost.
  void TakeControl(std::string_view digits, std::int64_t now_us);
  /// The servo of an axis fails: it can be pushed, and all axes stop with the alarm.
  void LoseServo(int axis, std::int64_t now_us);
  bool ServoOn(int axis) const {
    return control_digits[axis] != '2' && (servo_lost & (1U << axis)) == 0;
  }
  /// A hand moves the slide, as far as it goes; false where the servo holds it.
  bool Push(int axis, int pulses);
  /// How long a macro runs; 0 where there is none of that number.
  std::int64_t MacroUs(int number) const;
  /// The fastest that an axis can run, in pulses a second.
  double TopSpeed(int axis) const;
  bool AnyMoving() const { return axes.MovingMask() != 0; }
  bool InUse(int axis) const { return ((mask >> axis) & 1U) != 0; }
  /// Pulses a second of an axis at a speed in mm/s; 0 when its device block holds no scale.
  double PulseSpeed(int axis, int mm_s) const;

  Setup setup;
  Memory memory;
  Axes axes;
  Mode mode;
  unsigned mask;
  std::optional<Alarm> alarm;
  bool pc_command = false;
  std::string control_digits = "0000";
  unsigned servo_lost = 0;         ///< until the alarm is reset
  std::deque<MotionStart> starts;  ///< the last ones
  std::array<std::int64_t, kAxes> travelled_at_stop{};

 private:
  void NoteStart(unsigned moving_before, const std::string& request, std::int64_t now_us);
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
/// The command that a request begins with, or null.
const Command* FindCommand(std::string_view request);

}  // namespace qvr7sim
