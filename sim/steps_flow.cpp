// Steps that decide what a program does next, and when.

#include "sim/moves.h"
#include "sim/step_commands.h"

namespace qvr7sim {

namespace {

constexpr int kNowhere = -1;

bool IsSignal(const Operand& operand) {
  return operand.kind >= RefKind::kInput && operand.kind <= RefKind::kLocalFlag;
}

StepOutcome Nothing(StepRun&) { return StepOutcome::Done(); }

StepOutcome End(StepRun&) { return StepOutcome::Ends(); }

StepOutcome GoTo(StepRun& run, int at) {
  if (at == kNowhere) return BadStep();
  run.task.next = at;
  return StepOutcome::Done();
}

StepOutcome Jump(StepRun& run) {
  const auto label = WholeNumber(run, run.step.op1, 1, kLabels);
  return label ? GoTo(run, run.task.code.label_at[*label]) : BadStep();
}

StepOutcome Call(StepRun& run) {
  const auto number = WholeNumber(run, run.step.op1, 1, kSubroutines);
  if (!number || run.task.calls.size() >= kCallDepth) return BadStep();
  const int begin = run.task.code.subroutine_at[*number];
  if (begin == kNowhere) return BadStep();
  run.task.calls.push_back(run.task.at + 1);
  return GoTo(run, begin + 1);
}

/// The main part does not run into a subroutine: it goes on behind its end.
StepOutcome PassSubroutine(StepRun& run) {
  const std::vector<ProgramStep>& steps = run.task.code.steps;
  int at = run.task.at;
  while (at < static_cast<int>(steps.size()) && steps[at].code != step_code::kSret) ++at;
  return GoTo(run, at + 1);
}

StepOutcome Return(StepRun& run) {
  if (run.task.calls.empty()) return BadStep();
  const int at = run.task.calls.back();
  run.task.calls.pop_back();
  return GoTo(run, at);
}

/// Until this time behind the step's begin.
bool TimeIsOver(StepRun& run, std::int64_t thousandths) {
  constexpr std::int64_t kUsPerThousandth = 1000;
  run.task.wake_us = run.task.began_us + thousandths * kUsPerThousandth;
  return run.now_us >= *run.task.wake_us;
}

StepOutcome Timer(StepRun& run) {
  if (!WholeNumber(run, run.step.op1, 0, 999)) return BadValue();
  const std::int64_t time = run.plant.values.Thousandths(run.step.op1, run.task.program);
  return TimeIsOver(run, time) ? StepOutcome::Done() : StepOutcome::Waits();
}

/// Time 0 waits without end.
template <bool on>
StepOutcome WaitFor(StepRun& run) {
  if (!IsSignal(run.step.op1) || run.step.op2.kind != RefKind::kNumber) return BadStep();
  if (run.plant.values.IsOn(run.step.op1, run.task.program) == on) return StepOutcome::Done();
  const int time = run.step.op2.value;
  if (time > 0 && TimeIsOver(run, time)) return StepOutcome::Result(false);
  return StepOutcome::Waits();
}

StepOutcome StartOther(StepRun& run) {
  const auto program = WholeNumber(run, run.step.op1, 1, kPrograms);
  if (!program || run.plant.memory.programs.Written(*program).empty()) return BadStep();
  const Tasks::Started started = run.tasks.Start(run.plant, *program, run.now_us);
  const bool no_room = started == Tasks::Started::kNoRoom;
  if (no_room && !run.step.HasResult()) return BadStep();
  return StepOutcome::Result(started == Tasks::Started::kNow);
}

StepOutcome EndOther(StepRun& run) {
  const auto program = WholeNumber(run, run.step.op1, 1, kPrograms);
  if (!program) return BadStep();
  if (*program == run.task.program) return StepOutcome::Ends();
  return StepOutcome::Result(run.tasks.Stop(run.plant, *program, run.now_us));
}

/// Brakes what the program has set in motion, and waits for its rest.
StepOutcome StopAxes(StepRun& run) {
  if (run.task.phase++ == 0) run.plant.axes.Stop(kStopFall, run.now_us, run.task.moving);
  run.task.arrival = {};
  const bool rests = (run.task.moving & run.plant.axes.MovingMask()) == 0;
  return rests ? StepOutcome::Done() : StepOutcome::Waits();
}

StepOutcome Pause(StepRun& run) {
  return run.task.resumed ? StepOutcome::Done() : StepOutcome::Waits();
}

namespace code = step_code;
constexpr StepEntry kSteps[] = {
    {code::kNop, Nothing},         {code::kStop, StopAxes},   {code::kTim, Timer},
    {code::kLb, Nothing},          {code::kJump, Jump},       {code::kCall, Call},
    {code::kSr, PassSubroutine},   {code::kSret, Return},     {code::kWton, WaitFor<true>},
    {code::kWtof, WaitFor<false>}, {code::kStpg, StartOther}, {code::kEdpg, EndOther},
    {code::kPause, Pause},         {code::kRem, Nothing},     {code::kEnd, End}};

}  // namespace

std::span<const StepEntry> FlowSteps() { return kSteps; }

}  // namespace qvr7sim
