#include "sim/moves.h"

#include <algorithm>

#include "sim/error_codes.h"

namespace qvr7sim {

namespace {

constexpr double kJogRise = 0.1;
constexpr Alarm kBadNumber{'0', '0', error_code::kBadNumber};
constexpr Alarm kServoOff{'0', '0', error_code::kMotorPowerOff};

Alarm AxisAlarm(int axis, char middle, char code) {
  return {static_cast<char>('1' + axis), middle, code};
}

void SetPushing(Plant& plant, int axis, bool on) {
  plant.pushing = on ? plant.pushing | 1U << axis : plant.pushing & ~(1U << axis);
}

std::optional<Alarm> Refusal(const Plant& plant, int axis, const AxisMove& move) {
  if (!plant.InUse(axis) || move.vel == 0 || move.rise_s <= 0.0) return kBadNumber;
  if (!plant.ServoOn(axis)) return kServoOff;
  if (plant.PulseSpeed(axis, move.vel) <= 0.0) return kBadNumber;
  if (move.to >= 0 && move.to <= plant.memory.MaxPulses(axis)) return std::nullopt;
  return AxisAlarm(axis, '0', error_code::kBeyondStroke);
}

}  // namespace

std::optional<Alarm> StartMoves(Plant& plant, const AxisMoves& moves, std::int64_t now_us) {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!moves[axis].moves) continue;
    if (const auto refused = Refusal(plant, axis, moves[axis])) return refused;
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    const AxisMove& move = moves[axis];
    if (!move.moves) continue;
    SetPushing(plant, axis, move.pushes);
    plant.axes.Move(axis, move.to, plant.PulseSpeed(axis, move.vel), move.rise_s, now_us);
    plant.axes.TripAbove(axis, plant.TopSpeed(axis), AxisAlarm(axis, '1', error_code::kDeviation));
  }
  return std::nullopt;
}

std::optional<Alarm> StartHoming(Plant& plant, unsigned mask, std::int64_t now_us) {
  const auto speed = [&plant](int axis) { return plant.PulseSpeed(axis, plant.setup.home_mm_s); };
  for (int axis = 0; axis < kAxes; ++axis) {
    if (((mask >> axis) & 1U) == 0) continue;
    if (speed(axis) <= 0.0) return kBadNumber;
    if (!plant.ServoOn(axis)) return kServoOff;
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    if (((mask >> axis) & 1U) == 0) continue;
    SetPushing(plant, axis, false);
    plant.axes.Home(axis, speed(axis), plant.setup.home_search_us, now_us);
  }
  return std::nullopt;
}

std::optional<Alarm> JogRefusal(const Plant& plant, int axis) {
  if (!plant.InUse(axis)) return kBadNumber;
  if (!plant.ServoOn(axis)) return kServoOff;
  return std::nullopt;
}

void JogAxis(Plant& plant, int axis, bool to_home, double speed, std::int64_t now_us) {
  constexpr int kBehindTheEnd = 100;  // pulses
  SetPushing(plant, axis, false);
  const int here = plant.axes.Pulses(axis, now_us), stroke = plant.memory.MaxPulses(axis);
  if (plant.memory.SoftLimit(axis)) {
    const int end = to_home ? std::min(0, here) : std::max(stroke, here);
    return plant.axes.Move(axis, end, speed, kJogRise, now_us);
  }
  const int end = to_home ? std::min(-kBehindTheEnd, here) : std::max(stroke + kBehindTheEnd, here);
  const char code = to_home ? error_code::kMinusLimit : error_code::kPlusLimit;
  plant.axes.RunInto(axis, end, speed, kJogRise, now_us, AxisAlarm(axis, '3', code));
}

}  // namespace qvr7sim
