#include "sim/step_commands.h"

#include <array>

namespace qvr7sim {

namespace {

std::array<StepCommand, step_code::kCodes> AllCommands() {
  std::array<StepCommand, step_code::kCodes> commands{};
  for (const auto& family : {FlowSteps(), ValueSteps(), MotionSteps(), PlaceSteps()}) {
    for (const StepEntry& entry : family) commands[entry.code] = entry.run;
  }
  return commands;
}

}  // namespace

StepCommand FindStepCommand(int code) {
  static const std::array<StepCommand, step_code::kCodes> commands = AllCommands();
  return code >= 0 && code < step_code::kCodes ? commands[code] : nullptr;
}

std::optional<int> WholeNumber(const StepRun& run, const Operand& operand, int low, int high) {
  constexpr int kThousand = 1000;
  const bool good = operand.kind == RefKind::kNumber || operand.kind == RefKind::kVariable ||
                    operand.kind == RefKind::kLocalVariable;
  if (!good) return std::nullopt;
  const std::int64_t value = run.plant.values.Thousandths(operand, run.task.program) / kThousand;
  if (value < low || value > high) return std::nullopt;
  return static_cast<int>(value);
}

std::optional<unsigned> AxesOf(const StepRun& run) {
  const auto pattern = WholeNumber(run, run.step.op1, 1, (1 << kAxes) - 1);
  if (!pattern) return std::nullopt;
  const auto mask = static_cast<unsigned>(*pattern);
  return (mask & ~run.plant.mask) == 0 ? std::optional(mask) : std::nullopt;
}

/// From 0; an axis in use.
std::optional<int> AxisOf(const StepRun& run) {
  const auto axis = WholeNumber(run, run.step.op1, 1, kAxes);
  return axis && run.plant.InUse(*axis - 1) ? std::optional(*axis - 1) : std::nullopt;
}

PositionRecord RecordOf(const StepRun& run, int number) {
  PositionRecord record;
  DecodePosition(run.plant.memory.positions.Written(number), &record);
  return record;
}

}  // namespace qvr7sim
