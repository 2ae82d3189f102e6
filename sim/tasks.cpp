#include "sim/tasks.h"

#include <algorithm>

#include "sim/error_codes.h"
#include "sim/moves.h"
#include "sim/plant.h"

namespace qvr7sim {

namespace {

constexpr int kThousand = 1000;

/// Where each number of a command stands first.
template <std::size_t size>
void Index(const std::vector<ProgramStep>& steps, int code, std::array<int, size>* places) {
  places->fill(-1);
  for (std::size_t at = steps.size(); at-- > 0;) {
    const Operand& op = steps[at].op1;
    const int number = op.value / kThousand;
    const bool good = steps[at].code == code && op.kind == RefKind::kNumber && number >= 1 &&
                      number < static_cast<int>(size);
    if (good) (*places)[number] = static_cast<int>(at);
  }
}

}  // namespace

LoadedProgram::LoadedProgram(const std::string& digits) : steps(DecodeProgram(digits)) {
  Index(steps, step_code::kLb, &label_at);
  Index(steps, step_code::kSr, &subroutine_at);
}

Tasks::Started Tasks::Start(Plant& plant, int program, std::int64_t now_us) {
  if (std::optional<Task>* running = SlotOf(program)) {
    (*running)->resumed = true;
    Poke(now_us);
    return Started::kAlready;
  }
  const auto slot =
      std::find_if(slots_.begin(), slots_.end(), [](const auto& s) { return !s.has_value(); });
  if (slot == slots_.end()) return Started::kNoRoom;
  const std::string& digits = plant.memory.programs.Written(program);
  plant.values.Local(program) = LocalValues();
  if (!digits.empty()) slot->emplace(program, digits, now_us + plant.setup.step_us);
  return Started::kNow;
}

bool Tasks::Stop(Plant& plant, int program, std::int64_t now_us) {
  std::optional<Task>* slot = SlotOf(program);
  if (slot == nullptr) return false;
  plant.axes.Stop(kStopFall, now_us, (*slot)->moving);
  slot->reset();
  return true;
}

void Tasks::StopAll(Plant& plant, std::int64_t now_us) {
  for (std::optional<Task>& slot : slots_) {
    if (slot) Stop(plant, slot->program, now_us);
  }
}

void Tasks::Drop() {
  slots_ = {};
  poke_us_.reset();
}

std::optional<std::int64_t> Tasks::NextUs() const {
  std::optional<std::int64_t> next = poke_us_;
  for (const std::optional<Task>& slot : slots_) {
    if (!slot) continue;
    const auto due = slot->waiting ? slot->wake_us : slot->ready_us;
    if (due && (!next || *due < *next)) next = due;
  }
  return next;
}

std::optional<StepFailure> Tasks::Run(Plant& plant, std::int64_t now_us) {
  const std::int64_t done_before = steps_done_;
  bool waits = false;
  if (poke_us_ && *poke_us_ <= now_us) poke_us_.reset();
  for (std::optional<Task>& slot : slots_) {
    if (slot && slot->moving != 0) SeeArrival(plant, *slot);
  }
  for (std::optional<Task>& slot : slots_) {
    if (!slot) continue;
    const bool due = slot->waiting || slot->ready_us <= now_us;
    const auto failed = due ? RunStep(plant, slot, now_us) : std::nullopt;
    if (failed) return failed;
    waits = waits || (slot && slot->waiting);
  }
  // What a step has changed is seen by those that wait when the next steps run.
  if (waits && steps_done_ != done_before && !poke_us_) poke_us_ = now_us + plant.setup.step_us;
  return std::nullopt;
}

void Tasks::SeeArrival(Plant& plant, Task& task) {
  task.moving &= plant.axes.MovingMask();
  if (task.aside == 0 || (task.aside & task.moving) != 0) return;
  task.aside = 0;
  plant.values.Switch(task.arrival, task.program, true);
  task.arrival = {};
}

std::optional<StepFailure> Tasks::RunStep(Plant& plant, std::optional<Task>& slot,
                                          std::int64_t now_us) {
  Task& task = *slot;
  if (task.AtEnd()) {
    if (task.moving == 0) slot.reset();
    return std::nullopt;
  }
  const ProgramStep& step = task.Step();
  if (!task.waiting) {
    task.next = task.at + 1;
    task.phase = 0;
    task.step_axes = 0;
    task.began_us = now_us;
    task.resumed = false;
    task.wake_us.reset();
  }
  const StepCommand command = FindStepCommand(step.code);
  const bool bad = command == nullptr || step.condition.kind == RefKind::kBad ||
                   step.result.kind == RefKind::kBad;
  if (bad) return Finish(plant, slot, StepOutcome::Fails(error_code::kProgramStep), now_us);
  const bool skipped = !task.waiting && step.HasCondition() &&
                       plant.values.IsOn(step.condition, task.program) == step.negated;
  if (skipped) {
    GoOn(plant, slot, now_us);
    return std::nullopt;
  }
  StepRun run{*this, plant, task, step, now_us};
  return Finish(plant, slot, command(run), now_us);
}

std::optional<StepFailure> Tasks::Finish(Plant& plant, std::optional<Task>& slot,
                                         const StepOutcome& outcome, std::int64_t now_us) {
  Task& task = *slot;
  const Operand& result = task.Step().result;
  switch (outcome.kind) {
    case StepOutcome::Kind::kWaits:
      if (!task.waiting) plant.values.Switch(result, task.program, false);
      task.waiting = true;
      return std::nullopt;
    case StepOutcome::Kind::kEnds:
      task.next = static_cast<int>(task.code.steps.size());
      break;
    case StepOutcome::Kind::kAlarm:
      return StepFailure{outcome.alarm, task.program, task.at + 1};
    case StepOutcome::Kind::kDone:
    case StepOutcome::Kind::kFailed:
      plant.values.Switch(result, task.program, outcome.kind == StepOutcome::Kind::kDone);
  }
  GoOn(plant, slot, now_us);
  return std::nullopt;
}

void Tasks::GoOn(Plant& plant, std::optional<Task>& slot, std::int64_t now_us) {
  Task& task = *slot;
  ++steps_done_;
  task.at = task.next;
  task.waiting = task.AtEnd();
  task.wake_us.reset();
  task.ready_us = now_us + plant.setup.step_us;
  if (task.AtEnd() && task.moving == 0) slot.reset();
}

std::optional<Task>* Tasks::SlotOf(int program) {
  for (std::optional<Task>& slot : slots_) {
    if (slot && slot->program == program) return &slot;
  }
  return nullptr;
}

const Task* Tasks::Find(int program) const {
  for (const std::optional<Task>& slot : slots_) {
    if (slot && slot->program == program) return &*slot;
  }
  return nullptr;
}

int Tasks::Count() const {
  return static_cast<int>(std::count_if(slots_.begin(), slots_.end(),
                                        [](const auto& slot) { return slot.has_value(); }));
}

}  // namespace qvr7sim
