// What the inputs make a controller in position mode do.

#include "sim/error_codes.h"
#include "sim/machine.h"
#include "sim/moves.h"

namespace qvr7sim {

namespace {

constexpr double kTenMilliseconds = 0.01;
constexpr int kNumberInputs = 12;  // P1 to P800
constexpr int kStop = 17;

int Target(const AxisTarget& target, int here) {
  if (target.way == 2) return here + target.pulses;
  if (target.way == 3) return here - target.pulses;
  return target.pulses;
}

bool IsOn(const Machine& machine, int input) {
  return machine.values.IsOn({RefKind::kInput, input}, 0);
}

/// Three decimal digits of four inputs each; -1 when one is no digit.
int NumberOnInputs(const Machine& machine) {
  int number = 0;
  for (int digit = kNumberInputs / 4 - 1; digit >= 0; --digit) {
    int value = 0;
    for (int bit = 0; bit < 4; ++bit) value |= IsOn(machine, 4 * digit + bit + 1) ? 1 << bit : 0;
    if (value > 9) return -1;
    number = 10 * number + value;
  }
  return number;
}

}  // namespace

void Machine::StartByInputs(std::int64_t now_us) {
  if (alarm || AnyMoving() || IsOn(*this, kStop) || IsOn(*this, kPause)) return;
  unsigned mask = 0;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (InUse(axis) && control_digits[axis] == '0') mask |= 1U << axis;
  }
  if (mask == 0) return;  // the PC holds them all
  const int number = NumberOnInputs(*this);
  const unsigned moving_before = axes.MovingMask();
  const auto refused = number < 0 ? std::optional(Alarm{'0', '0', error_code::kBadNumber})
                                  : MoveToPosition(number, mask, true, now_us);
  if (refused) return Raise(*refused, now_us);
  NoteStart(moving_before, "inputs", now_us);
}

std::optional<Alarm> Machine::MoveToPosition(int number, unsigned mask, bool with_macro,
                                             std::int64_t now_us) {
  if (number == 0) return StartHoming(*this, mask, now_us);
  PositionRecord record;
  DecodePosition(memory.positions.Written(number), &record);
  AxisMoves steps;
  for (int axis = 0; axis < kAxes; ++axis) {
    const AxisTarget& target = record.axis[axis];
    if (((mask >> axis) & 1U) == 0 || target.way == 0) continue;
    if (!axes.Homed(axis)) {
      return Alarm{static_cast<char>('1' + axis), '0', error_code::kNotHomed};
    }
    const int to = Target(target, axes.Pulses(axis, now_us));
    steps[axis] = {true, to, target.vel, target.acc * kTenMilliseconds, target.pf != 0};
  }
  if (const auto refused = StartMoves(*this, steps, now_us)) return refused;
  const bool has_macro = with_macro && record.sm >= 1 && record.sm <= kMacros;
  const std::string macro = has_macro ? memory.macros.Written(record.sm) : std::string();
  arrival = Arrival{.outputs = record.out, .macro = macro, .axes = mask};
  SeeArrival(now_us);
  return std::nullopt;
}

void Machine::InputWentOn(int number, std::int64_t now_us) {
  if (number == kRes) {
    alarm.reset();
    servo_lost = 0;
  }
  if (mode != Mode::kPosition) return;
  if (number == kStb) StartByInputs(now_us);
  if (number != kStop && number != kPause) return;
  axes.Stop(kStopFall, now_us);
  arrival.reset();
}

}  // namespace qvr7sim
