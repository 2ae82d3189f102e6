#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "sim/faults.h"
#include "sim/setup.h"

namespace qvr7sim {

/// A move of one axis: a straight rise of speed, a steady part and a straight fall.
struct Motion {
  std::int64_t start_us = 0;
  int from = 0;
  int to = 0;
  double peak = 0.0;  ///< pulses a second, above 0
  double rise_s = 0.0;
  double steady_s = 0.0;
  double fall_s = 0.0;
  std::int64_t after_us = 0;  ///< Time at the target that still belongs to the move.

  /// From standstill to standstill; a short way never reaches `speed`.
  static Motion Between(int from, int to, double speed, double rise_s, std::int64_t start_us);

  int PulsesAt(std::int64_t now_us) const;
  double SpeedAt(std::int64_t now_us) const;
  std::int64_t EndUs() const;
};

/// An axis that reaches this moment stops all with an alarm.
struct Trip {
  std::int64_t at_us = 0;
  Alarm alarm;
};

/// The four axes, index from 0. A move's end is seen by Settle, which runs before anything else
/// is asked at a later time.
class Axes {
 public:
  /// Brings finished moves to their end, in the order of time. Returns the alarm of a homing that
  /// failed or of an axis that tripped; all axes then stand since that moment.
  std::optional<Alarm> Settle(std::int64_t now_us);

  /// Needs an axis that stands. `speed` in pulses a second, above 0.
  void Move(int axis, int to, double speed, double rise_s, std::int64_t now_us);
  /// The same with full speed into an end that stops it, with this alarm of all axes.
  void RunInto(int axis, int end, double speed, double rise_s, std::int64_t now_us,
               const Alarm& alarm);
  /// The move just begun trips when it gets faster than `top` pulses a second.
  void TripAbove(int axis, double top, const Alarm& alarm);
  void Home(int axis, double speed, std::int64_t search_us, std::int64_t now_us);
  /// Brakes the moving axes of the mask within `fall_s`; a homing given up leaves the axis without
  /// a home.
  void Stop(double fall_s, std::int64_t now_us, unsigned mask = ~0U);
  /// All axes stand at once.
  void Halt(std::int64_t now_us);
  /// The axis stands at `pulses`, whatever it did.
  void Place(int axis, int pulses);
  /// A hand moves the standing slide: where it was sent stays known.
  void Shift(int axis, int pulses) { At(axis).pulses += pulses; }
  /// Where its last motion ended, whatever a hand has done since.
  int Sent(int axis) const { return At(axis).sent; }
  void LoseHome();
  void SetHomed(int axis) { At(axis).homed = true; }
  void FailNextHoming(int axis) { At(axis).fail_homing = true; }

  bool Moving(int axis) const { return At(axis).motion.has_value(); }
  unsigned MovingMask() const;
  /// The next moment at which an axis comes to rest by itself.
  std::optional<std::int64_t> NextRestUs() const;
  /// Pulses that the axis has moved on its own, in either direction, since it was made.
  std::int64_t Travelled(int axis, std::int64_t now_us) const;
  bool Homed(int axis) const { return At(axis).homed; }
  int Pulses(int axis, std::int64_t now_us) const;

 private:
  struct State {
    int pulses = 0;
    int sent = 0;
    bool homed = false;
    bool homing = false;
    bool fail_homing = false;
    std::optional<Motion> motion;
    std::optional<Trip> trip;  // of the motion
    std::int64_t travelled = 0;

    std::int64_t DueUs() const {
      return trip ? std::min(trip->at_us, motion->EndUs()) : motion->EndUs();
    }
    /// The motion ends here.
    void RestAt(int here);
  };
  State& At(int axis) { return states_[axis]; }
  const State& At(int axis) const { return states_[axis]; }
  int NextDue() const;

  std::array<State, kAxes> states_;
};

}  // namespace qvr7sim
