#include "sim/program_values.h"

#include <limits>

namespace qvr7sim {

namespace {

constexpr int kThousand = 1000;

}  // namespace

bool ProgramValues::IsOn(const Operand& signal, int program) const {
  switch (signal.kind) {
    case RefKind::kInput:
      return inputs_[signal.value];
    case RefKind::kOutput:
      return outputs_[signal.value];
    case RefKind::kFlag:
      return flags_[signal.value];
    case RefKind::kLocalFlag:
      return locals_[program].flags[signal.value];
    default:
      return false;
  }
}

void ProgramValues::Switch(const Operand& signal, int program, bool on) {
  if (signal.kind == RefKind::kOutput) outputs_[signal.value] = on;
  if (signal.kind == RefKind::kFlag) flags_[signal.value] = on;
  if (signal.kind == RefKind::kLocalFlag) locals_[program].flags[signal.value] = on;
}

std::int64_t ProgramValues::Thousandths(const Operand& operand, int program) const {
  switch (operand.kind) {
    case RefKind::kNumber:
      return operand.value;
    case RefKind::kVariable:
      return std::int64_t{variables_[operand.value]} * kThousand;
    case RefKind::kLocalVariable:
      return std::int64_t{locals_[program].variables[operand.value]} * kThousand;
    case RefKind::kPositionVariable:
      return locals_[program].positions[operand.value];
    default:
      return 0;
  }
}

bool ProgramValues::Store(const Operand& variable, int program, std::int64_t thousandths) {
  using Limits = std::numeric_limits<std::int32_t>;
  const bool whole = variable.kind != RefKind::kPositionVariable;
  const std::int64_t value = whole ? thousandths / kThousand : thousandths;
  if (value < Limits::min() || value > Limits::max()) return false;
  LocalValues& local = locals_[program];
  std::int32_t* place = nullptr;
  if (variable.kind == RefKind::kVariable) place = &variables_[variable.value];
  if (variable.kind == RefKind::kLocalVariable) place = &local.variables[variable.value];
  if (variable.kind == RefKind::kPositionVariable) place = &local.positions[variable.value];
  if (place != nullptr) *place = static_cast<std::int32_t>(value);
  return place != nullptr;
}

void ProgramValues::Clear() {
  const auto inputs = inputs_;
  *this = ProgramValues();
  inputs_ = inputs;
}

}  // namespace qvr7sim
