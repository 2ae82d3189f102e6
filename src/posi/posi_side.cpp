#include "posi/posi_side.h"

#include "base/text_helpers.h"
#include "posi/posi_format.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

bool IsLength(int col) { return AxisOfColumn(col) >= 0 && FieldOfColumn(col) == kPosi; }

void TakeLine(PosiSide& side, const PosiColumns<PosiSlots<Variant>>& from, int number) {
  side.Holds.set(number);
  for (int col = 1; col < kComment; ++col) side.Values[col][number] = ValueOf(from[col][number]);
  side.Comments[number] = TextOf(from[kComment][number]);
}

}  // namespace

PosiRange PosiSide::Range() const {
  PosiRange range{1, 0};
  for (int n = 1; n <= kPosiMaxNo; ++n) {
    if (!Holds[n]) continue;
    if (range.IsEmpty()) range.first = n;
    range.last = n;
  }
  return range;
}

int PosiSide::WayAt(int axis, int number) const {
  return WayOf(Values[AxisBase(axis) + kWay][number]);
}

void TakePosiTable(PosiSide& side) {
  side.Holds.reset();
  side.HasComments = true;
  for (int n = AppState.PosiFirstNo; n <= AppState.PosiLastNo; ++n) {
    TakeLine(side, PosiTable.PosiRec, n);
    for (int axis = 0; axis < kAxes; ++axis) {
      side.Values[AxisBase(axis) + kPosi][n] = PosiTable.PosiPulse[axis][n];
    }
  }
}

void TakePosiStage(PosiSide& side, const std::bitset<kPosiSlots>& numbers) {
  side.Holds.reset();
  for (int n = 1; n <= kPosiMaxNo; ++n) {
    if (numbers[n] && PosiTable.StageHolds[n]) TakeLine(side, PosiTable.PosiStage, n);
  }
}

bool IsComparedColumn(int col) {
  const int axis = AxisOfColumn(col);
  if (axis >= 0 && AppState.AxisMuko[axis]) return false;
  return !AppState.CtMode || IsLength(col) || col == kComment;
}

bool PosiCellDiffers(const PosiSide& a, const PosiSide& b, int col, int number) {
  if (col == kComment) {
    return a.HasComments && b.HasComments && a.Comments[number] != b.Comments[number];
  }
  const bool same = a.Values[col][number] == b.Values[col][number];
  if (!AppState.CtMode) return !same;
  const int axis = AxisOfColumn(col);
  const int way = a.WayAt(axis, number);
  return way != b.WayAt(axis, number) || (way != 0 && !same);
}

std::string PosiSideText(const PosiSide& side, int col, int number) {
  if (col == kComment) return side.Comments[number];
  const int axis = AxisOfColumn(col);
  const int way = axis < 0 ? 0 : side.WayAt(axis, number);
  return Trim(PosiValueText(col, side.Values[col][number], way, AppState.CtMode));
}

}  // namespace tr7
