#include "posi/posi_grid_fill.h"

#include <algorithm>
#include <numeric>
#include <string>

#include "device/dev_setting.h"
#include "forms/frm_posi.h"
#include "posi/posi_edits.h"
#include "posi/posi_format.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

int jumps = 0;  // of `GoToPosiCell`

int ShownPositions() {
  if (AppState.PosiFirstNo < 1) return 0;
  return std::max(AppState.PosiLastNo - AppState.PosiFirstNo + 1, 0);
}

void FillRow(int row, int number, bool program_mode) {
  Grid& grid = frmPosi.flgdData;
  grid.SetText(row, 0, std::to_string(number));
  for (int col = 1; col < kPosiColumns; ++col) {
    grid.SetText(row, col, PosiCellText(col, number, program_mode));
  }
}

void Fill(bool program_mode) {
  FG_HighSyoriStart();
  Grid& grid = frmPosi.flgdData;
  grid.SetRows(ShownPositions() + kPosiHeaderRows);
  frmPosi.ShownPrgMode = program_mode;
  frmPosi.ShownMuko = AppState.AxisMuko;
  for (int axis = 0; axis < kAxes; ++axis) {
    frmPosi.ShownLead[axis] = DevSetting[axis].Lead;
    frmPosi.ShownPpr[axis] = DevSetting[axis].Ppr;
  }
  frmPosi.SourceNo.resize(static_cast<std::size_t>(ShownPositions()));
  std::iota(frmPosi.SourceNo.begin(), frmPosi.SourceNo.end(), AppState.PosiFirstNo);
  for (int row = kPosiHeaderRows; row < grid.Rows(); ++row) {
    FillRow(row, PositionOfRow(row), program_mode);
  }
  if (grid.Rows() > kPosiHeaderRows) {
    grid.TopRow = kPosiHeaderRows;
    grid.SelectCell(kPosiHeaderRows, FirstShownColumn());
  }
  FG_HighSyoriEnd();
}

void Show(bool program_mode) {
  ForgetPosiEdits();
  Fill(program_mode);
}

}  // namespace

void QvDataHyoji_3() { Show(false); }
void QvDataHyoji_3Prg() { Show(true); }
void FG_ShowTable() { Show(AppState.CtMode); }
void FG_ShowTableAgain() { Fill(AppState.CtMode); }

void FG_HighSyoriStart() { frmPosi.flgdData.Redraw = false; }

void FG_HighSyoriEnd() {
  frmPosi.flgdData.Redraw = true;
  frmPosi.flgdData.Touch();
}

void FG_InitPos() { frmPosi.flgdData.SelectCell(0, 0); }

void GoToPosiCell(int number, int col) {
  const int row = RowOfPosition(number);
  if (row < 0) return;
  ++jumps;
  frmPosi.flgdData.SelectCell(row, col);
}

KeepPlace::KeepPlace()
    : row_(frmPosi.flgdData.Row),
      col_(frmPosi.flgdData.Col),
      row_sel_(frmPosi.flgdData.RowSel),
      col_sel_(frmPosi.flgdData.ColSel),
      top_row_(frmPosi.flgdData.TopRow),
      jumps_(jumps) {}

KeepPlace::~KeepPlace() {
  if (jumps != jumps_) return;
  Grid& grid = frmPosi.flgdData;
  const int last = grid.Rows() - 1;
  grid.TopRow = std::min(top_row_, last);
  grid.Select(std::min(row_, last), col_, std::min(row_sel_, last), col_sel_);
}

}  // namespace tr7
