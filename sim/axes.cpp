#include "sim/axes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace qvr7sim {

namespace {

constexpr double kMicro = 1e-6;

double SecondsSince(const Motion& motion, std::int64_t now_us) {
  return std::max(0.0, static_cast<double>(now_us - motion.start_us) * kMicro);
}

}  // namespace

Motion Motion::Between(int from, int to, double speed, double rise_s, std::int64_t start_us) {
  Motion motion{.start_us = start_us, .from = from, .to = to, .peak = speed, .rise_s = rise_s};
  const double way = std::abs(to - from);
  if (way < speed * rise_s) {
    motion.peak = std::sqrt(way * speed / rise_s);
    motion.rise_s = motion.peak * rise_s / speed;
  }
  motion.fall_s = motion.rise_s;
  motion.steady_s = motion.peak > 0.0 ? std::max(0.0, way / motion.peak - motion.rise_s) : 0.0;
  return motion;
}

int Motion::PulsesAt(std::int64_t now_us) const {
  const double t = SecondsSince(*this, now_us);
  const double before_fall = rise_s + steady_s;
  if (t >= before_fall + fall_s) return to;
  double way = 0.0;
  if (t < rise_s) {
    way = peak * t * t / (2.0 * rise_s);
  } else if (t < before_fall) {
    way = peak * (t - rise_s / 2.0);
  } else {
    const double left = before_fall + fall_s - t;
    way = std::abs(to - from) - peak * left * left / (2.0 * fall_s);
  }
  const int whole = std::clamp(static_cast<int>(std::lround(way)), 0, std::abs(to - from));
  return to >= from ? from + whole : from - whole;
}

double Motion::SpeedAt(std::int64_t now_us) const {
  const double t = SecondsSince(*this, now_us);
  const double end = rise_s + steady_s + fall_s;
  if (t >= end) return 0.0;
  if (t < rise_s) return peak * t / rise_s;
  if (t < rise_s + steady_s) return peak;
  return peak * (end - t) / fall_s;
}

std::int64_t Motion::EndUs() const {
  return start_us + static_cast<std::int64_t>(std::llround((rise_s + steady_s + fall_s) / kMicro)) +
         after_us;
}

void Axes::State::RestAt(int here) {
  if (motion) travelled += std::abs(here - motion->from);
  pulses = here;
  sent = here;
  motion.reset();
  trip.reset();
}

int Axes::NextDue() const {
  int next = -1;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!Moving(axis)) continue;
    if (next < 0 || At(axis).DueUs() < At(next).DueUs()) next = axis;
  }
  return next;
}

std::optional<std::int64_t> Axes::NextRestUs() const {
  const int axis = NextDue();
  return axis < 0 ? std::nullopt : std::optional(At(axis).DueUs());
}

std::optional<Alarm> Axes::Settle(std::int64_t now_us) {
  for (int axis = NextDue(); axis >= 0 && At(axis).DueUs() <= now_us; axis = NextDue()) {
    State& state = At(axis);
    const std::int64_t due_us = state.DueUs();
    if (state.trip) {
      const Alarm alarm = state.trip->alarm;
      Halt(due_us);
      return alarm;
    }
    state.RestAt(state.motion->to);
    if (!state.homing) continue;
    state.homing = false;
    if (state.fail_homing) {
      state.fail_homing = false;
      Halt(due_us);
      return Alarm{static_cast<char>('1' + axis), '3', '4'};
    }
    state.homed = true;
  }
  return std::nullopt;
}

void Axes::Move(int axis, int to, double speed, double rise_s, std::int64_t now_us) {
  State& state = At(axis);
  if (to == state.pulses) return;
  state.motion = Motion::Between(state.pulses, to, speed, rise_s, now_us);
}

void Axes::RunInto(int axis, int end, double speed, double rise_s, std::int64_t now_us,
                   const Alarm& alarm) {
  State& state = At(axis);
  const double way = std::abs(end - state.pulses);
  const int beyond = static_cast<int>(speed * rise_s) + 1;
  if (way == 0.0) return;
  Move(axis, end > state.pulses ? end + beyond : end - beyond, speed, rise_s, now_us);
  const double rise_way = speed * rise_s / 2.0;
  const double time_s =
      way < rise_way ? std::sqrt(2.0 * way * rise_s / speed) : rise_s / 2.0 + way / speed;
  state.trip = Trip{now_us + std::llround(time_s / kMicro), alarm};
}

void Axes::TripAbove(int axis, double top, const Alarm& alarm) {
  State& state = At(axis);
  if (!state.motion || state.motion->peak <= top) return;
  const double time_s = state.motion->rise_s * top / state.motion->peak;
  state.trip = Trip{state.motion->start_us + std::llround(time_s / kMicro), alarm};
}

void Axes::Home(int axis, double speed, std::int64_t search_us, std::int64_t now_us) {
  constexpr double kHomingRise = 0.1;
  State& state = At(axis);
  state.homed = false;
  state.homing = true;
  state.motion = Motion::Between(state.pulses, 0, speed, kHomingRise, now_us);
  state.motion->after_us = search_us;
}

void Axes::Stop(double fall_s, std::int64_t now_us, unsigned mask) {
  for (int axis = 0; axis < kAxes; ++axis) {
    State& state = At(axis);
    if (!state.motion || ((mask >> axis) & 1U) == 0) continue;
    const Motion motion = *state.motion;
    const int here = motion.PulsesAt(now_us);
    const double speed = motion.SpeedAt(now_us);
    const int room = std::abs(motion.to - here);
    const int way = std::min(room, static_cast<int>(std::lround(speed * fall_s / 2.0)));
    const int to = motion.to >= here ? here + way : here - way;
    state.RestAt(here);
    state.homing = false;
    if (way == 0) continue;
    state.motion = Motion{.start_us = now_us, .from = here, .to = to, .peak = speed};
    state.motion->fall_s = 2.0 * way / speed;
  }
}

void Axes::Halt(std::int64_t now_us) {
  for (State& state : states_) {
    if (state.motion) state.RestAt(state.motion->PulsesAt(now_us));
    state.homing = false;
  }
}

void Axes::Place(int axis, int pulses) {
  State& state = At(axis);
  if (state.motion) state.RestAt(state.motion->from);
  state.homing = false;
  state.pulses = pulses;
  state.sent = pulses;
}

void Axes::LoseHome() {
  for (State& state : states_) state.homed = false;
}

unsigned Axes::MovingMask() const {
  unsigned mask = 0;
  for (int axis = 0; axis < kAxes; ++axis) mask |= Moving(axis) ? 1U << axis : 0U;
  return mask;
}

std::int64_t Axes::Travelled(int axis, std::int64_t now_us) const {
  const State& state = At(axis);
  return state.travelled +
         (state.motion ? std::abs(state.motion->PulsesAt(now_us) - state.motion->from) : 0);
}

int Axes::Pulses(int axis, std::int64_t now_us) const {
  const State& state = At(axis);
  return state.motion ? state.motion->PulsesAt(now_us) : state.pulses;
}

}  // namespace qvr7sim
