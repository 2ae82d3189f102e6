#include "prog/prog_cells.h"

#include "prog/prog_hint.h"
#include "prog/prog_listing.h"
#include "prog/prog_targets.h"
#include "prog/vocabulary.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgGoTo = 7062, kMsgListKey = 7063;

bool IsStep(const Grid& listing, int row) { return row >= 1 && row < listing.Rows(); }

}  // namespace

RowMark MarkOfRow(const Grid& listing, int row) {
  switch (MarkOfStep(listing, row)) {
    case StepMark::Label:
    case StepMark::Subroutine:
      return RowMark::Target;
    case StepMark::Jump:
    case StepMark::Call:
      return RowMark::Jump;
    case StepMark::None:
      break;
  }
  return RowMark::None;
}

bool IsUnusedCell(const Grid& listing, int row, int column) {
  if (!IsStep(listing, row) || column < kProgOperand1 || column > kProgResult) return false;
  const int code = CodeOfStep(listing, row);
  return code >= 0 && !ColumnIsUsed(code, column);
}

std::string FaultOfCell(const Grid& listing, int row, int column) {
  if (!IsStep(listing, row) || column < kProgCommand) return {};
  return CellFault(CodeOfStep(listing, row), column, listing.Text(row, column));
}

std::string HintText(const Grid& listing) {
  if (!IsStep(listing, listing.Row)) return {};
  const int code = CodeOfStep(listing, listing.Row);
  const std::string meaning = CommandMeaning(code);
  if (listing.Col <= kProgCommand) {
    return ProgHeading(kProgCommand) + "  [" + Text(kMsgListKey) + "]  " + meaning;
  }
  const std::string fault = FaultOfCell(listing, listing.Row, listing.Col);
  const int target = TargetOfStep(listing, listing.Row);
  return (fault.empty() ? "" : fault + "  ") + ProgHint(code, listing.Col) +
         (meaning.empty() ? "" : "  [" + meaning + "]") +
         (target == 0 ? "" : "  " + Text(kMsgGoTo, std::to_string(target)));
}

}  // namespace tr7
