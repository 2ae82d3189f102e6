#include "sim/program_step.h"

#include "sim/text.h"

namespace qvr7sim {

namespace {

Operand Reference(int distance) {
  for (const ReferenceBand& band : kReferenceBands) {
    const int index = distance - band.before_first;
    if (index >= 1 && index <= band.count) return {band.kind, index};
  }
  return {RefKind::kBad, distance};
}

Operand DecodeOperand(int code) {
  if (code >= kBandStart) return Reference(code - kBandStart);
  return {RefKind::kNumber, code >= kNegativeStart ? kNegativeStart - code : code};
}

/// Of conditions and results: flags, outputs and inputs alone.
Operand DecodeSignal(int code) {
  if (code == 0) return {};
  const Operand reference = Reference(code);
  const bool is_signal = reference.kind <= RefKind::kLocalFlag;
  return is_signal ? reference : Operand{RefKind::kBad, code};
}

}  // namespace

int CountOf(RefKind kind) {
  for (const ReferenceBand& band : kReferenceBands) {
    if (band.kind == kind) return band.count;
  }
  return 0;
}

ProgramStep DecodeStep(std::string_view digits) {
  const auto field = [&digits](std::size_t at, std::size_t width) {
    return HexValue(digits.substr(at, width));
  };
  ProgramStep step;
  step.code = field(0, 2);
  step.op1 = DecodeOperand(field(2, 6));
  step.op2 = DecodeOperand(field(8, 6));
  const int condition = field(14, 3);
  step.negated = condition >= kNegatedCondition;
  step.condition = DecodeSignal(step.negated ? condition - kNegatedCondition : condition);
  if (step.negated && !step.HasCondition()) step.condition = {RefKind::kBad, condition};
  step.result = DecodeSignal(field(17, 2));
  if (step.result.kind == RefKind::kInput) step.result.kind = RefKind::kBad;
  return step;
}

std::vector<ProgramStep> DecodeProgram(std::string_view digits) {
  std::vector<ProgramStep> steps;
  for (std::size_t at = 0; at + kStepDigits <= digits.size(); at += kStepDigits) {
    steps.push_back(DecodeStep(digits.substr(at, kStepDigits)));
  }
  return steps;
}

}  // namespace qvr7sim
