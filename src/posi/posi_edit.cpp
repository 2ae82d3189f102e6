#include "posi/posi_edit.h"

#include <algorithm>
#include <functional>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "posi/cell_rules.h"
#include "posi/posi_check.h"
#include "posi/posi_clipboard.h"
#include "posi/posi_edits.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_hint.h"
#include "posi/posi_lines.h"
#include "posi/posi_table.h"
#include "posi/posi_undo.h"
#include "posi/speed_decimals.h"
#include "posi/unit_change.h"
#include "state/app_state.h"
#include "state/go_to.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgAllGood = 6358, kMsgRefused = 5940;
constexpr int kMsgSpeedDecimals = 6366;

/// Ends an edit. Leaving a cell as it was is no edit, so it is neither judged nor a change.
EditVerdict AcceptEdit(int row, int col, std::string& text) {
  Grid& grid = frmPosi.flgdData;
  frmPosi.OldCellText = grid.Text(row, col);
  // The editor shows a cell without the blanks that align it.
  if (Trim(text) == Trim(frmPosi.OldCellText)) {
    text = frmPosi.OldCellText;
    return {};
  }
  if (grid.RowSel != row || grid.ColSel != col) grid.SelectCell(row, col);
  const std::string typed = text;
  if (SetCellData(row, col, text) != 0) {
    doors.forms->Beep();
    TellInStatusPanel(RefusalText(col));
    return {false, Text(kMsgRefused, RefusalText(col), Trim(text))};
  }
  RememberPosiEdit();
  frmPosi.PosiChanged = True;
  const std::string lost = SpeedDecimalsNote(col, text);
  if (!lost.empty()) {
    TellNote(lost);
  } else if (RuleChanged(col, typed, text)) {
    TellRounded(typed, text);
  }
  return {};
}

/// The line of a number that the user types.
void GoToLine() {
  constexpr int kNothingYet = 6368;
  Grid& grid = frmPosi.flgdData;
  if (grid.Rows() <= kPosiHeaderRows) return TellInStatusPanel(Text(kNothingYet));
  const auto number = AskLineNumber(PositionOfRow(kPosiHeaderRows), PositionOfRow(grid.Rows() - 1));
  if (!number) return;
  GoToPosiCell(*number, std::max(grid.Col, 1));
  doors.forms->SetFocus(grid);
}

/// The shown body column beside `col` in a direction; 0 when there is none.
int ShownBeside(int col, int step) {
  for (int next = col + step; next >= 1 && next < kPosiColumns; next += step) {
    if (IsShownColumn(next)) return next;
  }
  return 0;
}

int LastShownColumn() { return ShownBeside(kPosiColumns, -1); }

void MoveForward() {
  Grid& grid = frmPosi.flgdData;
  if (grid.Row < kPosiHeaderRows) {
    grid.SelectCell(kPosiHeaderRows, FirstShownColumn());
  } else if (const int next = ShownBeside(grid.Col, 1); next > 0) {
    grid.SelectCell(grid.Row, next);
  } else if (grid.Row + 1 < grid.Rows() || (AppState.CtMode && AppendLine())) {
    grid.SelectCell(grid.Row + 1, FirstShownColumn());
  } else {
    grid.SelectCell(grid.Row, grid.Col);
  }
}

void MoveBack() {
  Grid& grid = frmPosi.flgdData;
  if (const int before = ShownBeside(grid.Col, -1); before > 0 && grid.Row >= kPosiHeaderRows) {
    grid.SelectCell(grid.Row, before);
  } else if (grid.Row > kPosiHeaderRows) {
    grid.SelectCell(grid.Row - 1, LastShownColumn());
  } else {
    grid.SelectCell(kPosiHeaderRows, FirstShownColumn());
  }
}

/// Enter and Tab: over the hidden columns, and from a line's end to the next line. In program mode
/// the table grows by a line at its end.
void MoveOn(bool backwards) {
  const Grid& grid = frmPosi.flgdData;
  if (!grid.Enabled || grid.Rows() <= kPosiHeaderRows) return;
  if (backwards) {
    MoveBack();
  } else {
    MoveForward();
  }
}

/// A table that is being taught is not edited meanwhile.
std::function<void()> NotWhileTeaching(void (*command)()) {
  return [command] {
    if (!AppState.TeachingNow) command();
  };
}

/// All is good; what will not reach the controller all the same is named.
std::string GoodResult() {
  const std::string lossy = PositionsWithSpeedDecimals();
  return WithReason(Text(kMsgAllGood),
                    lossy.empty() ? lossy : Text(kMsgSpeedDecimals) + "\n" + lossy);
}

}  // namespace

void cmdPosiCheck_Click() {
  if (Check_flgdLineNo() != 0) return;
  if (CheckInPlace()) {
    MsgBox(GoodResult(), MsgButtons::Ok, MsgIcon::Information);
    return;
  }
  for (int n = AppState.PosiFirstNo; n <= AppState.PosiLastNo; ++n) {
    if (!PosiTable.PosiLineBad[n]) continue;
    frmPosi.flgdData.SelectCell(RowOfPosition(n), FirstShownColumn());
    return;
  }
}

void InstallPosiEdit() {
  FrmPosi& f = frmPosi;
  f.flgdData.CanEdit = IsOpenCell;
  f.flgdData.AcceptEdit = AcceptEdit;
  f.flgdData.MaxLength = [](int col) { return col == kComment ? kCommentChars : 0; };
  f.flgdData.InputMethodOn = [](int col) { return col == kComment; };
  f.flgdData.MoveOn = MoveOn;
  f.flgdData.Copy = [] { frmPosi.mnuPopupCopy.Press(); };
  // The clipboard may have been filled elsewhere since the selection switched the menu.
  f.flgdData.Paste = [] {
    if (frmPosi.mnuPopupCopy.Enabled) cmdPosiPaste_Click();
  };
  f.cmdInsertLine.Click = cmdInsertLine_Click;
  f.cmdDeleteLine.Click = cmdDeleteLine_Click;
  f.cmdPosiCopy.Click = cmdPosiCopy_Click;
  f.cmdPosiPaste.Click = cmdPosiPaste_Click;
  f.cmdPosiCheck.Click = cmdPosiCheck_Click;
  f.Commands.GoTo = GoToLine;
  f.Commands.Undo = NotWhileTeaching(PosiUndoClick);
  f.Commands.Redo = NotWhileTeaching(PosiRedoClick);
  f.Commands.InsertLine = NotWhileTeaching(cmdInsertLine_Click);
  f.Commands.DeleteLine = NotWhileTeaching(cmdDeleteLine_Click);
  f.Commands.Copy = NotWhileTeaching(cmdPosiCopy_Click);
  f.Commands.Paste = NotWhileTeaching(cmdPosiPaste_Click);
}

}  // namespace tr7
