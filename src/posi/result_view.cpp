#include "posi/result_view.h"

#include <algorithm>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "forms/frm_syogo_kekka.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_hint.h"
#include "posi/posi_table.h"
#include "posi/syogo_flags.h"
#include "state/app_state.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgOtherSide = 6351;
constexpr int kMsgNumber = 6352;
constexpr int kMsgCell = 6353;
constexpr int kMsgEmpty = 6354;
constexpr int kMsgNameAndValue = 6355;
constexpr int kMsgGoToCell = 6367;
constexpr int kEdges = 160;  // twips of the view's width that are no columns
constexpr int kPrgColumns = 4;

Grid& ResultGrid() { return frmSyogoKekka.flgdKekka; }

bool IsShown(int col) {
  if (col == 0) return true;
  const int axis = AxisOfColumn(col);
  if (axis >= 0 && AppState.AxisMuko[axis]) return false;
  return !AppState.CtMode || (axis >= 0 && FieldOfColumn(col) == kPosi);
}

void SetWidths() {
  Grid& grid = ResultGrid();
  int shown = 0;
  for (int col = 0; col < grid.Cols(); ++col) shown += IsShown(col) ? 1 : 0;
  const int columns = AppState.CtMode ? kPrgColumns : shown;
  const int width = (static_cast<int>(frmSyogoKekka.Width) - kEdges) / columns;
  for (int col = 0; col < grid.Cols(); ++col) grid.SetColWidth(col, IsShown(col) ? width : 0);
}

void WriteHeaders() {
  Grid& grid = ResultGrid();
  const Grid& source = frmPosi.flgdData;
  const int titles = 0, names = 1;
  grid.SetText(names, 0, "No.");
  for (int col = 1; col < grid.Cols(); ++col) {
    grid.SetText(titles, col, source.Text(titles, col));
    grid.SetText(names, col, PosiColumnName(col));
    grid.SetColColour(col, source.ColColour(col));
  }
}

/// What the position view shows in the cell.
std::string OwnText(int number, int col) {
  const Grid& grid = frmPosi.flgdData;
  const int row = RowOfPosition(number);
  return row >= grid.FixedRows && row < grid.Rows() ? Trim(grid.Text(row, col)) : std::string();
}

int NumberOfRow(int row) { return static_cast<int>(Val(ResultGrid().Text(row, 0))); }

bool IsFlaggedCell(int row, int col) {
  const Grid& grid = ResultGrid();
  if (row < grid.FixedRows || row >= grid.Rows() || col < 1 || col >= grid.Cols()) return false;
  const int number = NumberOfRow(row);
  return number >= 1 && number <= kPosiMaxNo && CellIsFlagged(col, number);
}

std::string NoteOfCell(const OtherSide& other, int number, int col) {
  if (!other.text) return PosiRangeText(col);
  const std::string text = other.text(number, col);
  return Text(kMsgNameAndValue, other.name.empty() ? Text(kMsgOtherSide) : other.name,
              text.empty() ? Text(kMsgEmpty) : text);
}

/// The line's flagged cells, those of hidden columns too: there is no other place to see them.
std::string LineText(const OtherSide& other, int number) {
  std::string line = Text(kMsgNumber, std::to_string(number));
  const char* separator = "";
  for (int col = 1; col < kComment; ++col) {
    if (!CellIsFlagged(col, number)) continue;
    const std::string own = OwnText(number, col);
    line += separator + Text(kMsgCell,
                             PosiColumnName(col) + " " + (own.empty() ? Text(kMsgEmpty) : own),
                             NoteOfCell(other, number, col));
    separator = ",  ";
  }
  return line;
}

void AddLine(int number) {
  Grid& grid = ResultGrid();
  const int row = grid.Rows();
  grid.SetRows(row + 1);
  grid.SetText(row, 0, std::to_string(number));
  for (int col = 1; col < grid.Cols(); ++col) {
    if (CellIsFlagged(col, number)) grid.SetText(row, col, OwnText(number, col));
  }
}

void FillGrid() {
  Grid& grid = ResultGrid();
  WriteHeaders();
  SetWidths();
  grid.SetRows(kPosiHeaderRows);
  for (int n = std::max<int>(AppState.PosiFirstNo, 1); n <= kPosiMaxNo; ++n) {
    if (LineIsFlagged(n)) AddLine(n);
  }
}

void WireOtherSide(const OtherSide& other, HandlersForOnce& handlers) {
  Grid& grid = ResultGrid();
  handlers.Set(grid.CellToolTip, [&other](int row, int col) {
    return IsFlaggedCell(row, col) ? NoteOfCell(other, NumberOfRow(row), col) : std::string();
  });
  handlers.Set(grid.SelChange, [&other] {
    const Grid& result = ResultGrid();
    const bool body = result.Row >= result.FixedRows && result.Row < result.Rows();
    frmSyogoKekka.lblLine.Caption = body ? LineText(other, NumberOfRow(result.Row)) : std::string();
  });
}

/// The cell in the table itself, where it can be mended.
bool GoToCell() {
  const Grid& result = ResultGrid();
  if (result.Row < result.FixedRows || result.Row >= result.Rows()) return false;
  GoToPosiCell(NumberOfRow(result.Row), std::max(result.Col, 1));
  frmSyogoKekka.Visible = false;
  return true;
}

void LoadResultView() {
  FrmSyogoKekka& f = frmSyogoKekka;
  f.Caption = Text(f.SyogoViewIsVerify ? MsgId(2301) : MsgId(2302));
  f.lblExplanation.Caption =
      Text(f.SyogoViewIsVerify ? MsgId(2303) : MsgId(2304)) + "\n" + Text(kMsgGoToCell);
  FillGrid();
  f.flgdKekka.SelectCell(kPosiHeaderRows, 0);
}

}  // namespace

void ShowSyogoKekka(bool verify, const OtherSide& other) {
  frmSyogoKekka.SyogoViewIsVerify = verify;
  HandlersForOnce handlers;
  WireOtherSide(other, handlers);
  ShowViewModal(frmSyogoKekka);
}

void InstallResultView() {
  FrmSyogoKekka& f = frmSyogoKekka;
  f.Load = LoadResultView;
  f.flgdKekka.FitsView = true;
  f.flgdKekka.CanEdit = [](int, int) { return false; };
  f.flgdKekka.IsMarked = IsFlaggedCell;
  f.flgdKekka.GoToTarget = [](bool) { return GoToCell(); };
  f.cmdClose.Click = [] { frmSyogoKekka.Visible = false; };
}

}  // namespace tr7
