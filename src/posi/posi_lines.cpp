#include "posi/posi_lines.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "posi/posi_check.h"
#include "posi/posi_edits.h"
#include "posi/posi_format.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

bool IsBodyRow(int row) { return row >= kPosiHeaderRows && row < frmPosi.flgdData.Rows(); }

/// No position may pass 999, wherever the table starts.
bool IsFull() { return AppState.PosiLastNo >= kPosiMaxNo; }

auto SourceOf(int row) { return frmPosi.SourceNo.begin() + (row - kPosiHeaderRows); }

}  // namespace

void PosiLinesChanged() {
  Grid& grid = frmPosi.flgdData;
  for (int row = kPosiHeaderRows; row < grid.Rows(); ++row) {
    grid.SetText(row, 0, std::to_string(PositionOfRow(row)));
  }
  AppState.PosiCount = static_cast<std::int16_t>(grid.Rows() - kPosiHeaderRows);
  AppState.PosiLastNo = static_cast<std::int16_t>(AppState.PosiFirstNo + AppState.PosiCount - 1);
  if (AppState.PosiCount == 0) AppState.PosiFirstNo = AppState.PosiLastNo = 0;
  AppState.PosiFromNo = AppState.PosiFirstNo;
  AppState.PosiToNo = AppState.PosiLastNo;
  frmPosi.PosiChanged = True;
}

void InsertLineDefaults(int row) {
  for (int col = 1; col < kPosiColumns; ++col) {
    frmPosi.flgdData.SetText(row, col, PosiDefaultText(col, AppState.CtMode));
  }
}

bool AppendLine() {
  if (IsFull()) return false;
  const PosiEditStep step;
  Grid& grid = frmPosi.flgdData;
  grid.SetRows(grid.Rows() + 1);
  frmPosi.SourceNo.push_back(0);
  InsertLineDefaults(grid.Rows() - 1);
  PosiLinesChanged();
  return true;
}

void cmdInsertLine_Click() {
  if (Check_flgdLineNo() != 0) return;
  Grid& grid = frmPosi.flgdData;
  const int row = grid.Row;
  if (!IsBodyRow(row)) {
    MsgBox(TwoLines(388, 389));
    return;
  }
  if (IsFull()) return;
  const PosiEditStep step;
  FG_HighSyoriStart();
  grid.InsertRow(row);
  frmPosi.SourceNo.insert(SourceOf(row), 0);
  InsertLineDefaults(row);
  PosiLinesChanged();
  grid.SelectCell(row, grid.Col);
  FG_HighSyoriEnd();
}

void cmdDeleteLine_Click() {
  if (Check_flgdLineNo() != 0) return;
  Grid& grid = frmPosi.flgdData;
  const auto [first, last] = std::minmax({grid.Row, grid.RowSel});
  if (!IsBodyRow(first) || !IsBodyRow(last)) {
    MsgBox(TwoLines(386, 387));
    return;
  }
  const PosiEditStep step;
  FG_HighSyoriStart();
  frmPosi.SourceNo.erase(SourceOf(first), SourceOf(last + 1));
  for (int count = last - first + 1; count > 0; --count) grid.RemoveRow(first);
  PosiLinesChanged();
  const int row = std::min(first, grid.Rows() - 1);
  if (IsBodyRow(row)) {
    grid.SelectCell(row, FirstShownColumn());
  } else {
    FG_InitPos();
  }
  FG_HighSyoriEnd();
  // An Enter that was meant for something else deletes nothing more.
  doors.forms->SetFocus(grid);
}

}  // namespace tr7
