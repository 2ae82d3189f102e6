#include "posi/posi_syogo.h"

#include <algorithm>
#include <cstdint>

#include "base/text_helpers.h"
#include "posi/posi_format.h"
#include "posi/posi_table.h"
#include "posi/syogo_flags.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

double Staged(int col, int number) { return ValueOf(PosiTable.PosiStage[col][number]); }

double Held(int col, int number) {
  const int axis = AxisOfColumn(col);
  if (axis >= 0 && FieldOfColumn(col) == kPosi) {
    return PosiTable.PosiPulse[axis][number];
  }
  return ValueOf(PosiTable.PosiRec[col][number]);
}

/// Columns that the mode does not use, and axes that are not in use, are passed over. In program
/// mode a line that does not move an axis holds no position of it.
bool IsCompared(int col, int number) {
  const int axis = AxisOfColumn(col);
  if (axis >= 0 && AppState.AxisMuko[axis]) return false;
  if (!AppState.CtMode) return true;
  if (axis < 0) return false;
  if (FieldOfColumn(col) == kWay) return true;
  return FieldOfColumn(col) == kPosi && Held(AxisBase(axis) + kWay, number) != 0;
}

/// Program mode shows way and position in one cell: what differs in one is marked in both.
void FlagPairs(int number) {
  for (int axis = 0; axis < kAxes; ++axis) {
    const int way = AxisBase(axis) + kWay, posi = AxisBase(axis) + kPosi;
    if (!CellIsFlagged(way, number) && !CellIsFlagged(posi, number)) continue;
    FlagCell(way, number);
    FlagCell(posi, number);
  }
}

void CompareLine(int number) {
  for (int col = 1; col <= kSm; ++col) {
    if (IsCompared(col, number) && Staged(col, number) != Held(col, number)) FlagCell(col, number);
  }
  if (AppState.CtMode) FlagPairs(number);
}

}  // namespace

int PosiDataSyogoProc() {
  ClearSyogo();
  const int last = std::min<int>(AppState.PosiToNo, kPosiMaxNo);
  for (int n = std::max<int>(AppState.PosiFromNo, 1); n <= last; ++n) {
    if (!PosiTable.StageHolds[n]) continue;
    CompareLine(n);
    if (LineIsFlagged(n)) ++PosiTable.SyogoCount;
  }
  return PosiTable.SyogoCount == 0 ? 0 : 1;
}

int SyogoOverlap() {
  const std::int16_t first = std::max(AppState.PosiFirstNo, AppState.FileFirstNo);
  const std::int16_t last = std::min(AppState.PosiLastNo, AppState.FileLastNo);
  if (first < 1 || first > last) return 1;
  AppState.SyogoFromNo = first;
  AppState.SyogoToNo = last;
  return 0;
}

std::string StagedText(int number, int col) {
  const int axis = AxisOfColumn(col);
  const double way = axis < 0 ? 0 : Staged(AxisBase(axis) + kWay, number);
  return Trim(PosiValueText(col, Staged(col, number), way, AppState.CtMode));
}

}  // namespace tr7
