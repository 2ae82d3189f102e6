// Steps that move axes.

#include <algorithm>
#include <cstdlib>

#include "sim/moves.h"
#include "sim/step_commands.h"

namespace qvr7sim {

namespace {

constexpr int kPercent = 100;
constexpr double kTenMilliseconds = 0.01;
constexpr int kDefaultVel = 30;       // mm/s, as of a new position
constexpr double kDefaultRise = 0.1;  // s

enum class Way { kAsStored, kAbsolute, kRelative };

/// Axes that another motion has, or that the PC holds, cannot start yet.
bool AreTaken(const StepRun& run, unsigned mask) {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!Has(mask, axis)) continue;
    if (run.plant.axes.Moving(axis) || run.plant.control_digits[axis] == '1') return true;
  }
  return false;
}

/// The axes that this step has set in motion rest.
bool Arrived(const StepRun& run) { return (run.task.step_axes & run.plant.axes.MovingMask()) == 0; }

/// What has begun to move is the step's.
void Begun(StepRun& run, unsigned moving_before) {
  const unsigned started = run.plant.axes.MovingMask() & ~moving_before;
  run.task.step_axes = started;
  run.task.moving |= started;
  run.plant.NoteStart(
      moving_before,
      "program " + std::to_string(run.task.program) + " step " + std::to_string(run.task.at + 1),
      run.now_us);
}

/// Speed and rise that the program, its push settings and a position's own values make.
AxisMove MoveTo(const StepRun& run, int axis, int to, int own_vel, double own_rise_s) {
  const AxisSettings& settings = run.plant.settings[axis];
  int vel = run.task.vel != 0 ? run.task.vel : own_vel;
  if (settings.push_force != 0 && settings.push_speed != 0) {
    vel = std::max(1, vel * settings.push_speed / kPercent);
  }
  return {true, to, vel, run.task.rise_s > 0.0 ? run.task.rise_s : own_rise_s};
}

/// Starts the moves once the axes are free. Waits in either case; another outcome is a refusal.
StepOutcome Start(StepRun& run, const AxisMoves& moves) {
  unsigned mask = 0;
  for (int axis = 0; axis < kAxes; ++axis) mask |= moves[axis].moves ? 1U << axis : 0U;
  if (AreTaken(run, mask)) return StepOutcome::Waits();
  for (int axis = 0; axis < kAxes; ++axis) {
    if (moves[axis].moves && !run.plant.axes.Homed(axis)) {
      return AxisFails(axis, '0', error_code::kNotHomed);
    }
  }
  const unsigned moving_before = run.plant.axes.MovingMask();
  const auto refused = StartMoves(run.plant, moves, run.now_us);
  if (refused) return StepOutcome::Fails(*refused);
  ++run.task.phase;
  Begun(run, moving_before);
  return StepOutcome::Waits();
}

int Target(Way way, const AxisTarget& target, int here) {
  const bool back = target.way == 3;
  const bool relative = way == Way::kRelative || (way == Way::kAsStored && target.way >= 2);
  if (!relative) return target.pulses;
  return back ? here - target.pulses : here + target.pulses;
}

StepOutcome StartPosition(StepRun& run, int number, Way way) {
  const PositionRecord record = RecordOf(run, number);
  AxisMoves moves;
  for (int axis = 0; axis < kAxes; ++axis) {
    const AxisTarget& target = record.axis[axis];
    if (!run.plant.InUse(axis) || target.way == 0) continue;
    const int to = Target(way, target, run.plant.axes.Pulses(axis, run.now_us));
    moves[axis] = MoveTo(run, axis, to, target.vel, target.acc * kTenMilliseconds);
  }
  return Start(run, moves);
}

/// To the first position, and one after the other to the last where a second one is named.
template <Way way>
StepOutcome MoveAlong(StepRun& run) {
  const auto first = WholeNumber(run, run.step.op1, 1, kPositions);
  const bool one = run.step.op2.kind == RefKind::kNumber && run.step.op2.value == 0;
  const auto last = one ? first : WholeNumber(run, run.step.op2, 1, kPositions);
  if (!first || !last) return BadValue();
  while (Arrived(run)) {
    const int begun = run.task.phase;
    if (begun > std::abs(*last - *first)) return StepOutcome::Done();
    const int number = *last > *first ? *first + begun : *first - begun;
    const StepOutcome outcome = StartPosition(run, number, way);
    if (outcome.kind == StepOutcome::Kind::kAlarm || run.task.phase == begun) return outcome;
  }
  return StepOutcome::Waits();
}

/// Starts the move and goes on; the result comes when the axes arrive.
StepOutcome MoveAside(StepRun& run) {
  const auto number = WholeNumber(run, run.step.op1, 1, kPositions);
  if (!number) return BadValue();
  if (run.task.aside != 0) return StepOutcome::Waits();
  const StepOutcome outcome = StartPosition(run, *number, Way::kAsStored);
  if (outcome.kind == StepOutcome::Kind::kAlarm || run.task.phase == 0) return outcome;
  if (Arrived(run)) return StepOutcome::Done();
  run.task.aside = run.task.step_axes;
  run.task.arrival = run.step.result;
  return StepOutcome::Result(false);
}

StepOutcome Home(StepRun& run) {
  const auto mask = AxesOf(run);
  if (!mask) return BadValue();
  if (run.task.phase > 0) return Arrived(run) ? StepOutcome::Done() : StepOutcome::Waits();
  if (AreTaken(run, *mask)) return StepOutcome::Waits();
  const unsigned moving_before = run.plant.axes.MovingMask();
  const auto refused = StartHoming(run.plant, *mask, run.now_us);
  if (refused) return StepOutcome::Fails(*refused);
  ++run.task.phase;
  Begun(run, moving_before);
  return StepOutcome::Waits();
}

/// Starts the moves of a pattern of axes, and waits for their arrival.
template <typename TargetOf>
StepOutcome MoveEach(StepRun& run, unsigned mask, TargetOf target_of) {
  if (run.task.phase > 0) return Arrived(run) ? StepOutcome::Done() : StepOutcome::Waits();
  AxisMoves moves;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (Has(mask, axis)) {
      moves[axis] = MoveTo(run, axis, target_of(axis), kDefaultVel, kDefaultRise);
    }
  }
  return Start(run, moves);
}

/// To the places that the position variables of these axes hold.
StepOutcome MoveToVariables(StepRun& run) {
  const auto mask = AxesOf(run);
  if (!mask) return BadValue();
  return MoveEach(run, *mask, [&run](int axis) {
    return static_cast<int>(run.plant.ToPulses(
        axis, run.plant.values.Thousandths(PositionVariable(axis), run.task.program)));
  });
}

/// Back to where the last motion ended, from where a hand has moved the slide since.
StepOutcome MoveBack(StepRun& run) {
  const auto mask = AxesOf(run);
  if (!mask) return BadValue();
  for (int axis = 0; axis < kAxes; ++axis) {
    if (Has(*mask, axis) && !run.plant.memory.HasPulseGenerator(axis)) {
      return AxisFails(axis, '1', error_code::kEncoder);
    }
  }
  return MoveEach(run, *mask, [&run](int axis) { return run.plant.axes.Sent(axis); });
}

StepOutcome StartJog(StepRun& run, unsigned mask, bool to_home) {
  if (AreTaken(run, mask)) return StepOutcome::Waits();
  const int mm_s = run.task.vel != 0 ? run.task.vel : run.plant.setup.jog_mm_s;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!Has(mask, axis)) continue;
    if (const auto refused = JogRefusal(run.plant, axis)) return StepOutcome::Fails(*refused);
    if (run.plant.PulseSpeed(axis, mm_s) <= 0.0) return BadValue();
  }
  const unsigned moving_before = run.plant.axes.MovingMask();
  for (int axis = 0; axis < kAxes; ++axis) {
    if (Has(mask, axis)) {
      JogAxis(run.plant, axis, to_home, run.plant.PulseSpeed(axis, mm_s), run.now_us);
    }
  }
  ++run.task.phase;
  Begun(run, moving_before);
  return StepOutcome::Waits();
}

/// Runs until the signal is on. The ends of the strokes tell that it did not come: the result goes
/// off, or where there is none it is an alarm.
template <bool to_home>
StepOutcome Jog(StepRun& run) {
  constexpr int kBrakes = 2;
  const auto mask = AxesOf(run);
  const RefKind kind = run.step.op2.kind;
  if (!mask) return BadValue();
  if (kind < RefKind::kInput || kind > RefKind::kLocalFlag) return BadStep();
  if (run.task.phase < kBrakes && run.plant.values.IsOn(run.step.op2, run.task.program)) {
    run.plant.axes.Stop(kStopFall, run.now_us, run.task.step_axes);
    run.task.phase = kBrakes;
  }
  if (run.task.phase == 0) {
    const StepOutcome outcome = StartJog(run, *mask, to_home);
    if (outcome.kind == StepOutcome::Kind::kAlarm || run.task.phase == 0) return outcome;
  }
  if (!Arrived(run)) return StepOutcome::Waits();
  if (run.task.phase == kBrakes || run.step.HasResult()) {
    return StepOutcome::Result(run.task.phase == kBrakes);
  }
  int axis = 0;
  while (!Has(*mask, axis)) ++axis;
  return AxisFails(axis, '3', to_home ? error_code::kMinusLimit : error_code::kPlusLimit);
}

namespace code = step_code;
constexpr StepEntry kSteps[] = {{code::kHome, Home},
                                {code::kMvp, MoveAlong<Way::kAsStored>},
                                {code::kMva, MoveAlong<Way::kAbsolute>},
                                {code::kMvi, MoveAlong<Way::kRelative>},
                                {code::kPgr, MoveBack},
                                {code::kPmov, MoveAside},
                                {code::kMvd, MoveToVariables},
                                {code::kJogPlus, Jog<false>},
                                {code::kJogMinus, Jog<true>}};

}  // namespace

std::span<const StepEntry> MotionSteps() { return kSteps; }

}  // namespace qvr7sim
