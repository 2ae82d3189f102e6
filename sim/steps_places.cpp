// Steps that know places, and that set how the next moves go.

#include <algorithm>
#include <cstdlib>

#include "sim/step_commands.h"

namespace qvr7sim {

namespace {

constexpr int kPercent = 100;

StepOutcome SetVel(StepRun& run) {
  const auto vel = WholeNumber(run, run.step.op1, 1, 400);
  if (!vel) return BadValue();
  run.task.vel = *vel;
  return StepOutcome::Done();
}

/// Stored in hundredths of a millisecond.
StepOutcome SetAcc(StepRun& run) {
  constexpr int kShortest = 1000, kLongest = 200000;
  constexpr double kHundredthMs = 1e-5;
  const Operand& time = run.step.op1;
  if (time.kind != RefKind::kNumber) return BadStep();
  if (time.value < kShortest || time.value > kLongest) return BadValue();
  run.task.rise_s = time.value * kHundredthMs;
  return StepOutcome::Done();
}

/// The axis's place in a position becomes the position variable of the axis, or the other way.
template <bool put>
StepOutcome PlaceOfPosition(StepRun& run) {
  const auto axis = AxisOf(run);
  const auto number = WholeNumber(run, run.step.op2, 1, kPositions);
  if (!axis || !number) return BadValue();
  PositionRecord record = RecordOf(run, *number);
  AxisTarget& target = record.axis[*axis];
  ProgramValues& values = run.plant.values;
  const Operand variable = PositionVariable(*axis);
  if (!put) {
    const int pulses = target.way == 3 ? -target.pulses : target.pulses;
    values.Store(variable, run.task.program, run.plant.ToThousandths(*axis, pulses));
    return StepOutcome::Done();
  }
  const auto pulses = run.plant.ToPulses(*axis, values.Thousandths(variable, run.task.program));
  if (pulses < 0 || pulses > run.plant.memory.MaxPulses(*axis)) {
    return AxisFails(*axis, '0', error_code::kBeyondStroke);
  }
  target.way = 1;
  target.pulses = static_cast<int>(pulses);
  Bank& positions = run.plant.memory.positions;
  positions.Write(*number, EncodePosition(record));
  if (run.plant.memory.StoresPput()) positions.Commit(*number, *number);
  return StepOutcome::Done();
}

StepOutcome ReadPlace(StepRun& run) {
  const auto axis = AxisOf(run);
  if (!axis) return BadValue();
  const int pulses = run.plant.axes.Pulses(*axis, run.now_us);
  run.plant.values.Store(PositionVariable(*axis), run.task.program,
                         run.plant.ToThousandths(*axis, pulses));
  return StepOutcome::Done();
}

/// Whether all axes of the pattern that the position moves stand there, within their in-position
/// width. A way by so much has no place.
StepOutcome TestPlace(StepRun& run) {
  const auto mask = AxesOf(run);
  const auto number = WholeNumber(run, run.step.op2, 1, kPositions);
  if (!mask || !number) return BadValue();
  const PositionRecord record = RecordOf(run, *number);
  bool there = true;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!Has(*mask, axis) || record.axis[axis].way == 0) continue;
    if (record.axis[axis].way != 1) return BadValue();
    const int off = run.plant.axes.Pulses(axis, run.now_us) - record.axis[axis].pulses;
    there = there && std::abs(off) <= run.plant.memory.InPositionWidth(axis);
  }
  return StepOutcome::Result(there);
}

/// 0 is always off, 1 on inside of the zone, 2 on outside of it.
StepOutcome TestZone(StepRun& run) {
  const auto axis = AxisOf(run);
  const auto kind = WholeNumber(run, run.step.op2, 0, 2);
  if (!axis || !kind) return BadValue();
  const bool inside = run.plant.InZone(*axis, run.now_us);
  return StepOutcome::Result(*kind != 0 && inside == (*kind == 1));
}

/// The bounds of an axis's zone in mm.
StepOutcome SetZone(StepRun& run) {
  constexpr int kFarthest = 1'000'000;
  const int axis = run.step.code - step_code::kZone1;
  const auto bad = [](const Operand& op) {
    return op.kind != RefKind::kNumber || op.value < 0 || op.value > kFarthest;
  };
  if (bad(run.step.op1) || bad(run.step.op2)) return BadValue();
  run.plant.settings[axis].zone = {static_cast<int>(run.plant.ToPulses(axis, run.step.op1.value)),
                                   static_cast<int>(run.plant.ToPulses(axis, run.step.op2.value))};
  return StepOutcome::Done();
}

/// Force and speed of pushing, percent. Nothing stands in a simulated slide's way: it arrives.
StepOutcome SetPush(StepRun& run) {
  constexpr int kLeastForce = 20, kMostForce = 70;
  const auto force = WholeNumber(run, run.step.op1, 0, kMostForce);
  const auto speed = WholeNumber(run, run.step.op2, 0, kPercent);
  if (!force || !speed || (*force != 0 && *force < kLeastForce)) return BadValue();
  AxisSettings& settings = run.plant.settings[run.step.code - step_code::kPust1];
  settings.push_force = *force;
  settings.push_speed = *speed;
  return StepOutcome::Done();
}

namespace code = step_code;
constexpr StepEntry kSteps[] = {{code::kVel, SetVel},
                                {code::kAcc, SetAcc},
                                {code::kPput, PlaceOfPosition<true>},
                                {code::kPget, PlaceOfPosition<false>},
                                {code::kPtst, TestPlace},
                                {code::kCprd, ReadPlace},
                                {code::kZout, TestZone},
                                {code::kZone1, SetZone},
                                {code::kZone1 + 1, SetZone},
                                {code::kZone1 + 2, SetZone},
                                {code::kZone4, SetZone},
                                {code::kPust1, SetPush},
                                {code::kPust1 + 1, SetPush},
                                {code::kPust1 + 2, SetPush},
                                {code::kPust4, SetPush}};

}  // namespace

std::span<const StepEntry> PlaceSteps() { return kSteps; }

}  // namespace qvr7sim
