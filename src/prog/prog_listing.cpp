#include "prog/prog_listing.h"

#include <algorithm>

#include "base/text_helpers.h"
#include "prog/command_list.h"
#include "prog/prog_hint.h"
#include "prog/step_decode.h"
#include "prog/step_encode.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {

ProgCtRecord ProgCt;

namespace {

constexpr int kMsgStep = 5339, kMsgEmptyCommand = 7127;
constexpr int kNumberWidth = 400, kCellWidth = 1000, kRowHeight = 250;

int TellUnreadable(int step, int column, const std::string& fault) {
  MsgBox(WithReason(TwoLines(1030, 1031), Text(kMsgStep, std::to_string(step)) + ", " +
                                              ProgHeading(column) + ": " + fault));
  return 1;
}

/// 0; 1 at a cell that cannot be read.
int TakeStep(const Grid& listing, int number, ProgStep& step) {
  const ProgCells cells = CellsOfStep(listing, number);
  const int bad = EncodeCells(cells, step);
  if (bad == 0) return 0;
  // An empty cell that cannot be read is a command: the others may be empty.
  return TellUnreadable(
      number, bad,
      cells[bad].empty() ? Text(kMsgEmptyCommand) : CellFault(step[kProgCommand], bad, cells[bad]));
}

void SizeRows(Grid& listing) {
  for (int row = 0; row < listing.Rows(); ++row) listing.SetRowHeight(row, kRowHeight);
}

template <typename Steps, typename Cells>
void Show(ProgView& view, const Steps& steps, const Cells& cells_of) {
  if (steps.empty() || ReadCommandLst() != 0) return;
  std::vector<ProgCells> cells(steps.size());
  std::transform(steps.begin(), steps.end(), cells.begin(), cells_of);
  PutListing(view.flgdProg, cells);
  FGProg_InitPos(view.flgdProg);
}

ProgCells KnownCells(ProgCells cells) {
  if (SeekCmdCode(cells[kProgCommand]) < 0) cells[kProgCommand].clear();
  return cells;
}

}  // namespace

std::optional<ProgStep> StepOfListing(const Grid& listing, int step) {
  ProgStep encoded;
  return EncodeCells(CellsOfStep(listing, step), encoded) == 0 ? std::optional(encoded)
                                                               : std::nullopt;
}

ProgCells CellsOfStep(const Grid& listing, int step) {
  ProgCells cells;
  for (int column = kProgCommand; column <= kProgComment; ++column) {
    cells[column] = Trim(listing.Text(step, column));
  }
  return cells;
}

void PutCells(Grid& listing, int step, const ProgCells& cells) {
  for (int column = kProgCommand; column <= kProgComment; ++column) {
    listing.SetText(step, column, cells[column]);
  }
}

std::vector<ProgCells> CellsOfListing(const Grid& listing) {
  std::vector<ProgCells> steps;
  for (int step = 1; step <= ListingSteps(listing); ++step) {
    steps.push_back(CellsOfStep(listing, step));
  }
  return steps;
}

void PutListing(Grid& listing, const std::vector<ProgCells>& steps) {
  const ListingQuiet quiet(listing);
  listing.SetRows(static_cast<int>(steps.size()) + 1);
  SizeRows(listing);
  FGProg_ReNumber(listing);
  int step = 0;
  for (const ProgCells& cells : steps) PutCells(listing, ++step, cells);
}

int CodeOfStep(const Grid& listing, int step) {
  return SeekCmdCode(Trim(listing.Text(step, kProgCommand)));
}

int EncodeCells(const ProgCells& cells, ProgStep& step) {
  const int code = step[kProgCommand] = SeekCmdCode(cells[kProgCommand]);
  if (code < 0) return kProgCommand;
  for (int column = kProgOperand1; column <= kProgResult; ++column) {
    const std::string& text = cells[column];
    const auto value = seekInputData(code, column, text.empty() ? "0" : text);
    if (!value) return column;
    step[column] = *value;
  }
  return 0;
}

ProgCells DecodeStep(const ProgStep& step) {
  ProgCells cells;
  cells[kProgCommand] = CmdName(step[kProgCommand]);
  for (int column = kProgOperand1; column <= kProgResult; ++column) {
    cells[column] = StepCellToText(step, column).Text();
  }
  return cells;
}

void InitSize_FGProg(Grid& listing) {
  listing.SetColWidth(kProgNo, kNumberWidth);
  for (int column = kProgCommand; column <= kProgResult; ++column) {
    listing.SetColWidth(column, kCellWidth);
    listing.SetColAlign(column, ColAlign::Left);
  }
  listing.SetColWidth(kProgComment, -1);
  listing.SetColAlign(kProgComment, ColAlign::Left);
  SizeRows(listing);
}

void SetStr_FGProg(Grid& listing) {
  for (int column = 0; column < kProgColumns; ++column) {
    listing.SetText(0, column, ProgHeading(column));
  }
}

void FGProg_ReNumber(Grid& listing) {
  for (int row = 1; row < listing.Rows(); ++row) {
    listing.SetText(row, kProgNo, std::to_string(row));
  }
}

void FGProg_InitPos(Grid& listing) {
  listing.TopRow = 1;
  listing.SelectCell(ListingSteps(listing) > 0 ? 1 : 0, kProgCommand);
}

int ListingLimit(const ProgView& view) {
  const int number = view.Store.ProgCopyNo;
  return number == 0 ? kMostProgSteps : GetProgStepMax(number);
}

int TorikomiProg2DA(ProgView& view) {
  std::vector<ProgStep> steps(static_cast<std::size_t>(ListingSteps(view.flgdProg)));
  for (std::size_t i = 0; i < steps.size(); ++i) {
    if (TakeStep(view.flgdProg, static_cast<int>(i) + 1, steps[i]) != 0) return 1;
  }
  view.Store.ProgDA = std::move(steps);
  return 0;
}

void ProgDataHyoji(ProgView& view) { Show(view, view.Store.ProgCtDA, DecodeStep); }

void ProgDataHyoji2(ProgView& view) { Show(view, view.Store.ProgFileDA, KnownCells); }

}  // namespace tr7
