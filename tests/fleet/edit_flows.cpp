#include "tests/fleet/states.h"

namespace tr7 {
namespace {

std::string AnyText(Random& random) {
  return random.OneOf(
      {"0",    "1",     "2",     "3",      "10",       "30",
       "100",  "300",   "500",   "1234",   "99999",    "-1",
       "+250", "-12.5", "0.005", "12.345", "",         " ",
       "abc",  "1e3",   "a\"b",  "位置",   "approach", "123456789012345678901234567890"});
}

/// A body cell of the grid; false when there is none.
bool AnyCell(Random& random, int& row, int& col) {
  const int rows = frmPosi.flgdData.Rows() - kPosiHeaderRows;
  if (rows < 1) return false;
  row = kPosiHeaderRows + random.Below(rows);
  col = random.Between(1, kPosiColumns - 1);
  return true;
}

void TypeCells(Voyage& voyage) {
  Grid& grid = frmPosi.flgdData;
  int row = 0, col = 0;
  for (int edits = voyage.random.Between(1, 8); edits > 0; --edits) {
    if (!AnyCell(voyage.random, row, col)) return;
    const std::string before = grid.Text(row, col);
    const std::string typed = AnyText(voyage.random);
    const bool accepted = grid.TypeInto(row, col, typed) == 0;
    voyage.Require(accepted || grid.Text(row, col) == before, "a refused cell lost its text");
    voyage.Require(grid.Text(row, col) == before || frmPosi.PosiChanged, "an edit goes unnoticed");
    if (grid.MoveOn) grid.MoveOn(voyage.random.Chance(30));
  }
}

void SelectSomething(Random& random) {
  Grid& grid = frmPosi.flgdData;
  int row = 0, col = 0, row_end = 0, col_end = 0;
  if (!AnyCell(random, row, col) || !AnyCell(random, row_end, col_end)) return;
  switch (random.Below(4)) {
    case 0:
      return grid.SelectCell(row, col);
    case 1:
      return grid.Select(row, col, row_end, col);  // of a column
    case 2:
      return grid.Select(row, 1, row_end, kComment);  // whole lines
    default:
      return grid.Select(row, col, row_end, col_end);
  }
}

std::string ForeignText(Random& random) {
  std::string text;
  const int columns = random.OneOf({1, 2, 28, 28, 40});
  for (int lines = random.Between(1, 4); lines > 0; --lines) {
    for (int i = 0; i < columns; ++i) text += (i > 0 ? "\t" : "") + AnyText(random);
    text += random.OneOf({"\r", "\r\n", "\n", ""});
  }
  return text;
}

void ChangeLines(Voyage& voyage) {
  Random& random = voyage.random;
  for (int acts = random.Between(1, 4); acts > 0; --acts) {
    SelectSomething(random);
    if (random.Chance(20)) voyage.virt.clipboard.SetText(ForeignText(random));
    random
        .OneOf({&frmMain.mnuEditCopy, &frmMain.mnuEditPaste, &frmMain.mnuEditInsert,
                &frmMain.mnuEditLineDelete})
        ->Press();
  }
}

/// The check either commits every line or shows which are bad; what is shown stays.
void CheckTable(Voyage& voyage) {
  const TableState before = TableNow(voyage);
  frmPosi.cmdPosiCheck.Press();
  const TableState after = TableNow(voyage);
  voyage.Require(before.texts == after.texts && before.changed == after.changed,
                 "the check changed what is shown");
}

constexpr Flow kFlows[] = {
    {"type", 6, TypeCells}, {"lines", 4, ChangeLines}, {"check", 2, CheckTable}};

}  // namespace

std::span<const Flow> EditFlows() { return kFlows; }

}  // namespace tr7
