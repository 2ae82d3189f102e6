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

std::optional<Alarm> Refusal(const Machine& machine, int axis, const AxisMove& move) {
  if (!machine.InUse(axis) || move.vel == 0 || move.rise_s <= 0.0) return kBadNumber;
  if (!machine.ServoOn(axis)) return kServoOff;
  if (machine.PulseSpeed(axis, move.vel) <= 0.0) return kBadNumber;
  if (move.to >= 0 && move.to <= machine.memory.MaxPulses(axis)) return std::nullopt;
  return AxisAlarm(axis, '0', error_code::kBeyondStroke);
}

}  // namespace

std::optional<Alarm> StartMoves(Machine& machine, const AxisMoves& moves, std::int64_t now_us) {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!moves[axis].moves) continue;
    if (const auto refused = Refusal(machine, axis, moves[axis])) return refused;
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    const AxisMove& move = moves[axis];
    if (!move.moves) continue;
    machine.axes.Move(axis, move.to, machine.PulseSpeed(axis, move.vel), move.rise_s, now_us);
    machine.axes.TripAbove(axis, machine.TopSpeed(axis),
                           AxisAlarm(axis, '1', error_code::kDeviation));
  }
  return std::nullopt;
}

std::optional<Alarm> StartHoming(Machine& machine, unsigned mask, std::int64_t now_us) {
  const auto speed = [&machine](int axis) {
    return machine.PulseSpeed(axis, machine.setup.home_mm_s);
  };
  for (int axis = 0; axis < kAxes; ++axis) {
    if (((mask >> axis) & 1U) == 0) continue;
    if (speed(axis) <= 0.0) return kBadNumber;
    if (!machine.ServoOn(axis)) return kServoOff;
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    if (((mask >> axis) & 1U) == 0) continue;
    machine.axes.Home(axis, speed(axis), machine.setup.home_search_us, now_us);
  }
  return std::nullopt;
}

std::optional<Alarm> JogRefusal(const Machine& machine, int axis) {
  if (!machine.InUse(axis)) return kBadNumber;
  if (!machine.ServoOn(axis)) return kServoOff;
  return std::nullopt;
}

void JogAxis(Machine& machine, int axis, bool to_home, double speed, std::int64_t now_us) {
  constexpr int kBehindTheEnd = 100;  // pulses
  const int here = machine.axes.Pulses(axis, now_us), stroke = machine.memory.MaxPulses(axis);
  if (machine.memory.SoftLimit(axis)) {
    const int end = to_home ? std::min(0, here) : std::max(stroke, here);
    return machine.axes.Move(axis, end, speed, kJogRise, now_us);
  }
  const int end = to_home ? std::min(-kBehindTheEnd, here) : std::max(stroke + kBehindTheEnd, here);
  const char code = to_home ? error_code::kMinusLimit : error_code::kPlusLimit;
  machine.axes.RunInto(axis, end, speed, kJogRise, now_us, AxisAlarm(axis, '3', code));
}

}  // namespace qvr7sim
