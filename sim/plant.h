#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <utility>

#include "sim/axes.h"
#include "sim/axis_settings.h"
#include "sim/memory.h"
#include "sim/motion_start.h"
#include "sim/program_values.h"
#include "sim/setup.h"

namespace qvr7sim {

/// Outputs that the PC has turned round, and what the controller made of all at that time.
struct ForcedOutputs {
  unsigned mask = 0;
  unsigned own = 0;
};

/// What follows when the axes of a move to a position rest: its outputs, then its macro.
struct Arrival {
  int outputs = 0;
  std::string macro;          ///< pairs of digits; empty: there is none
  unsigned axes = 0;          ///< of the move
  bool reached = false;       ///< the outputs stand, and the macro runs
  std::size_t at = 0;         ///< its step that runs
  std::int64_t began_us = 0;  ///< when that began
};

/// What the controller keeps, what moves and what stands: all that requests and programs act on.
struct Plant {
  explicit Plant(const Setup& start);

  bool ServoOn(int axis) const {
    return control_digits[axis] != '2' && (servo_lost & (1U << axis)) == 0;
  }
  /// A hand moves the slide, as far as it goes; false where the servo holds it.
  bool Push(int axis, int pulses);
  /// The fastest that an axis can run, in pulses a second.
  double TopSpeed(int axis) const;
  /// The macro of the position that the axes have reached.
  bool MacroRuns() const { return arrival && arrival->reached; }
  /// The axis moves, or its macro runs: both count as the move.
  bool Busy(int axis) const {
    return axes.Moving(axis) || (MacroRuns() && ((arrival->axes >> axis) & 1U) != 0);
  }
  bool AnyMoving() const { return axes.MovingMask() != 0 || MacroRuns(); }
  bool InUse(int axis) const { return ((mask >> axis) & 1U) != 0; }
  /// Pulses a second of an axis at a speed in mm/s; 0 when its device block holds no scale.
  double PulseSpeed(int axis, int mm_s) const;
  /// Thousandths of a mm and pulses of an axis, rounded; 0 when it holds no scale.
  std::int64_t ToThousandths(int axis, std::int64_t pulses) const;
  std::int64_t ToPulses(int axis, std::int64_t thousandths) const;
  /// The axis stands in its zone, as programs or else the parameters set it.
  bool InZone(int axis, std::int64_t now_us) const;
  /// The axis stands where a move with force has taken it.
  bool HoldsByForce(int axis) const {
    return ((pushing >> axis) & 1U) != 0 && ServoOn(axis) && !axes.Moving(axis);
  }
  /// Keeps a start: what has begun to move since `moving_before`, and why.
  void NoteStart(unsigned moving_before, const std::string& cause, std::int64_t now_us);

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
  ProgramValues values;
  std::array<AxisSettings, kAxes> settings;
  unsigned pushing = 0;            ///< axes whose last move was one with force
  std::optional<Arrival> arrival;  ///< of the position that axes are on the way to, or have reached
  ForcedOutputs forced;
  std::pair<int, int> failed_step{};  ///< program and step (from 1) that the last alarm came from
};

}  // namespace qvr7sim
