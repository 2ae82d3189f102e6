#include "prog/prog_targets.h"

#include <string>

#include "base/text_helpers.h"
#include "prog/prog_listing.h"
#include "prog/step_encode.h"

namespace tr7 {
namespace {

/// The plain number of a step's first operand; 0 where it has none.
std::int64_t NumberOf(const Grid& listing, int step) {
  const auto cell = SplitCell(Trim(listing.Text(step, kProgOperand1)));
  return cell && cell->prefix.empty() ? cell->Number() : 0;
}

}  // namespace

StepMark MarkOfStep(const Grid& listing, int step) {
  const std::string command = Trim(listing.Text(step, kProgCommand));
  if (command == "LB") return StepMark::Label;
  if (command == "SR") return StepMark::Subroutine;
  if (command == "JUMP") return StepMark::Jump;
  return command == "CALL" ? StepMark::Call : StepMark::None;
}

int TargetOfStep(const Grid& listing, int step) {
  const StepMark mark = MarkOfStep(listing, step);
  const std::int64_t number = NumberOf(listing, step);
  if (number == 0 || (mark != StepMark::Jump && mark != StepMark::Call)) return 0;
  const StepMark target = mark == StepMark::Jump ? StepMark::Label : StepMark::Subroutine;
  for (int other = 1; other <= ListingSteps(listing); ++other) {
    if (MarkOfStep(listing, other) == target && NumberOf(listing, other) == number) return other;
  }
  return 0;
}

}  // namespace tr7
