// Steps that set outputs, flags and variables.

#include <cmath>
#include <tuple>

#include "sim/step_commands.h"

namespace qvr7sim {

namespace {

constexpr int kByteBits = 8;
constexpr int kThousand = 1000;

bool IsOutput(const Operand& operand) {
  return operand.kind >= RefKind::kOutput && operand.kind <= RefKind::kLocalFlag;
}
bool IsVariable(const Operand& operand) {
  return operand.kind >= RefKind::kVariable && operand.kind <= RefKind::kPositionVariable;
}
bool IsNothing(const Operand& operand) {
  return operand.kind == RefKind::kNumber && operand.value == 0;
}
/// Eight signals from this one on.
bool IsByte(const Operand& first) {
  return first.kind >= RefKind::kInput && first.kind <= RefKind::kLocalFlag &&
         first.value + kByteBits - 1 <= CountOf(first.kind);
}

template <bool on>
StepOutcome Switch(StepRun& run) {
  const auto& [op1, op2] = std::tie(run.step.op1, run.step.op2);
  if (!IsOutput(op1) || !(IsOutput(op2) || IsNothing(op2))) return BadStep();
  run.plant.values.Switch(op1, run.task.program, on);
  run.plant.values.Switch(op2, run.task.program, on);
  return StepOutcome::Done();
}

int ReadBits(const StepRun& run, Operand first, int bits) {
  int value = 0;
  for (int bit = 0; bit < bits; ++bit) {
    const Operand signal{first.kind, first.value + bit};
    if (run.plant.values.IsOn(signal, run.task.program)) value |= 1 << bit;
  }
  return value;
}

/// Two decimal digits, four signals each; -1 when one is no digit.
int FromDigits(int byte) {
  const int tens = byte >> 4, ones = byte & 0xF;
  return tens > 9 || ones > 9 ? -1 : tens * 10 + ones;
}
int ToDigits(int value) { return value / 10 * 16 + value % 10; }

template <bool digits>
StepOutcome In(StepRun& run) {
  if (!IsVariable(run.step.op1) || !IsByte(run.step.op2)) return BadStep();
  const int byte = ReadBits(run, run.step.op2, kByteBits);
  const int value = digits ? FromDigits(byte) : byte;
  if (value < 0) return BadValue();
  run.plant.values.Store(run.step.op1, run.task.program, std::int64_t{value} * kThousand);
  return StepOutcome::Done();
}

template <bool digits>
StepOutcome Out(StepRun& run) {
  const Operand& first = run.step.op2;
  if (!IsByte(first) || first.kind == RefKind::kInput) return BadStep();
  const auto value = WholeNumber(run, run.step.op1, 0, digits ? 99 : 255);
  if (!value) return BadValue();
  const int byte = digits ? ToDigits(*value) : *value;
  for (int bit = 0; bit < kByteBits; ++bit) {
    run.plant.values.Switch({first.kind, first.value + bit}, run.task.program,
                            ((byte >> bit) & 1) != 0);
  }
  return StepOutcome::Done();
}

/// In thousandths; none when there is no result.
std::optional<std::int64_t> Calculated(int code, std::int64_t a, std::int64_t b) {
  const bool divides = code == step_code::kDivide || code == step_code::kRemainder;
  if (divides && b == 0) return std::nullopt;
  constexpr double kFarTooMuch = 1e17;  // no variable holds a thousandth of it
  const bool overflows = code == step_code::kMultiply &&
                         std::abs(static_cast<double>(a) * static_cast<double>(b)) > kFarTooMuch;
  if (overflows) return std::nullopt;
  switch (code) {
    case step_code::kSet:
      return b;
    case step_code::kAdd:
      return a + b;
    case step_code::kSubtract:
      return a - b;
    case step_code::kMultiply:
      return a * b / kThousand;
    case step_code::kDivide:
      return a * kThousand / b;
    case step_code::kRemainder:
      return a % b;
    default:
      return std::nullopt;
  }
}

bool Compares(int code, std::int64_t a, std::int64_t b) {
  switch (code) {
    case step_code::kEqual:
      return a == b;
    case step_code::kUnequal:
      return a != b;
    case step_code::kAbove:
      return a > b;
    case step_code::kNotBelow:
      return a >= b;
    case step_code::kBelow:
      return a < b;
    default:
      return a <= b;
  }
}

bool TakesNumbers(const StepRun& run) {
  const Operand& op2 = run.step.op2;
  return IsVariable(run.step.op1) && (op2.kind == RefKind::kNumber || IsVariable(op2));
}

/// A value that does not fit, or a division by zero, leaves the variable as it is: the result
/// tells, or the alarm where there is none.
StepOutcome Calculate(StepRun& run) {
  if (!TakesNumbers(run)) return BadStep();
  ProgramValues& values = run.plant.values;
  const int program = run.task.program;
  const auto value = Calculated(run.step.code, values.Thousandths(run.step.op1, program),
                                values.Thousandths(run.step.op2, program));
  const bool stored = value && values.Store(run.step.op1, program, *value);
  return stored || run.step.HasResult() ? StepOutcome::Result(stored) : BadValue();
}

StepOutcome Compare(StepRun& run) {
  if (!TakesNumbers(run)) return BadStep();
  const ProgramValues& values = run.plant.values;
  return StepOutcome::Result(Compares(run.step.code,
                                      values.Thousandths(run.step.op1, run.task.program),
                                      values.Thousandths(run.step.op2, run.task.program)));
}

/// All variables from the first to the second.
StepOutcome Clear(StepRun& run) {
  const Operand& first = run.step.op1;
  const Operand& last = run.step.op2;
  if (!IsVariable(first) || first.kind != last.kind || first.value > last.value) return BadStep();
  for (int index = first.value; index <= last.value; ++index) {
    run.plant.values.Store({first.kind, index}, run.task.program, 0);
  }
  return StepOutcome::Done();
}

namespace code = step_code;
constexpr StepEntry kSteps[] = {
    {code::kOn, Switch<true>},    {code::kOff, Switch<false>}, {code::kIn, In<false>},
    {code::kInb, In<true>},       {code::kOut, Out<false>},    {code::kOutb, Out<true>},
    {code::kSet, Calculate},      {code::kAdd, Calculate},     {code::kSubtract, Calculate},
    {code::kMultiply, Calculate}, {code::kDivide, Calculate},  {code::kRemainder, Calculate},
    {code::kEqual, Compare},      {code::kUnequal, Compare},   {code::kAbove, Compare},
    {code::kNotBelow, Compare},   {code::kBelow, Compare},     {code::kNotAbove, Compare},
    {code::kClr, Clear}};

}  // namespace

std::span<const StepEntry> ValueSteps() { return kSteps; }

}  // namespace qvr7sim
