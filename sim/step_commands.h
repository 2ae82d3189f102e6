#pragma once

#include <optional>
#include <span>

#include "sim/error_codes.h"
#include "sim/tasks.h"

namespace qvr7sim {

/// A command of the step language.
struct StepEntry {
  int code;
  StepCommand run;
};

std::span<const StepEntry> FlowSteps();
std::span<const StepEntry> ValueSteps();
std::span<const StepEntry> MotionSteps();
std::span<const StepEntry> PlaceSteps();

/// The whole number that an operand stands for; none when it is outside of low to high or when the
/// operand is no number or variable.
std::optional<int> WholeNumber(const StepRun& run, const Operand& operand, int low, int high);

/// The axes of operation 1, a pattern of 1 to 15; none when one of them is not in use.
std::optional<unsigned> AxesOf(const StepRun& run);
/// The axis of operation 1, index from 0; none when it is not in use.
std::optional<int> AxisOf(const StepRun& run);
/// Position 1 to 999 as written.
PositionRecord RecordOf(const StepRun& run, int number);
/// The position variable that belongs to an axis, index from 0.
inline Operand PositionVariable(int axis) { return {RefKind::kPositionVariable, axis + 1}; }

inline bool Has(unsigned mask, int axis) { return ((mask >> axis) & 1U) != 0; }
/// The alarm of an axis, index from 0.
inline StepOutcome AxisFails(int axis, char middle, char code) {
  return StepOutcome::Fails(Alarm{static_cast<char>('1' + axis), middle, code});
}
inline StepOutcome BadStep() { return StepOutcome::Fails(error_code::kProgramStep); }
inline StepOutcome BadValue() { return StepOutcome::Fails(error_code::kBadNumber); }

}  // namespace qvr7sim
