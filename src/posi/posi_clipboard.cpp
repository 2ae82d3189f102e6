#include "posi/posi_clipboard.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "posi/cell_rules.h"
#include "posi/clip_matrix.h"
#include "posi/posi_check.h"
#include "posi/posi_edits.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_hint.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgCellsRefused = 6359;
constexpr int kMsgLinesBeyond = 6360;
constexpr int kMsgPlace = 6361;
constexpr int kMsgCommentsCut = 6462;
constexpr int kMsgNumbersRounded = 6463;
constexpr int kMsgOtherUnit = 6362;
constexpr std::size_t kLineColumns = 28;
constexpr std::size_t kMostRows = kPosiMaxNo + 1;  // one more is enough to know that some are left
constexpr std::size_t kMostCells = kLineColumns + 1;

/// A block of body cells, both ends included; columns from 1.
struct Block {
  int first_row, last_row, first_col, last_col;
  bool IsLine() const { return first_col == 1 && last_col == kComment; }
  bool IsColumn() const { return first_col == last_col; }
};

/// The selection. The number column stands for the line's first one, and all that is shown of a
/// line for the whole line.
Block SelectedBlock() {
  const Grid& grid = frmPosi.flgdData;
  const auto [first_row, last_row] = std::minmax({grid.Row, grid.RowSel});
  const auto [first_col, last_col] = std::minmax({grid.Col, grid.ColSel});
  Block block{first_row, last_row, first_col, last_col};
  const bool whole = first_col <= FirstShownColumn() && last_col == kComment;
  if (whole && first_col < last_col) block.first_col = 1;
  return block;
}

bool InBody(const Block& block) {
  return block.first_row >= kPosiHeaderRows && block.last_row < frmPosi.flgdData.Rows();
}

bool HoldsPositions(const Block& block) {
  return block.IsLine() ||
         (AxisOfColumn(block.first_col) >= 0 && FieldOfColumn(block.first_col) == kPosi);
}

std::string ClipText(const Block& block) {
  std::string text;
  for (int row = block.first_row; row <= block.last_row; ++row) {
    if (row > block.first_row) text += '\r';
    for (int col = block.first_col; col <= block.last_col; ++col) {
      if (col > block.first_col) text += '\t';
      text += Trim(frmPosi.flgdData.Text(row, col));
    }
  }
  return text;
}

/// What became of a paste.
struct Outcome {
  /// Cells that share a fate, and the first of them.
  struct Cells {
    int count = 0, row = 0, col = 0;
    void Add(int at_row, int at_col) {
      if (count++ > 0) return;
      row = at_row;
      col = at_col;
    }
  };
  int accepted = 0;
  Cells refused, cut, rounded;
  int lines_beyond = 0;
};

void PasteCell(int row, int col, std::string text, Outcome& outcome) {
  if (!IsOpenCell(row, col)) return;
  const std::string pasted = text;
  if (SetCellData(row, col, text) != 0) return outcome.refused.Add(row, col);
  if (RuleChanged(col, pasted, text)) {
    (col == kComment ? outcome.cut : outcome.rounded).Add(row, col);
  }
  frmPosi.flgdData.SetText(row, col, std::move(text));
  ++outcome.accepted;
}

/// Pastes from a cell on; a matrix of one row fills `rows` of them.
Outcome PasteFrom(const ClipMatrix& matrix, int row, int col, int rows) {
  Outcome outcome;
  const PosiEditStep step;
  const int lines = std::max(matrix.size() == 1 ? rows : 1, static_cast<int>(matrix.size()));
  const int room = frmPosi.flgdData.Rows() - row;
  outcome.lines_beyond = std::max(lines - room, 0);
  FG_HighSyoriStart();
  for (int i = 0; i < std::min(lines, room); ++i) {
    const auto& cells = matrix.size() == 1 ? matrix[0] : matrix[i];
    for (std::size_t k = 0; k < cells.size(); ++k) {
      PasteCell(row + i, col + static_cast<int>(k), cells[k], outcome);
    }
  }
  FG_HighSyoriEnd();
  return outcome;
}

/// "Cells ...: 3, the first at No. 2 VEL1. "; nothing where there are none.
std::string CellsText(MsgId message_id, const Outcome::Cells& cells) {
  if (cells.count == 0) return {};
  const std::string number = std::to_string(PositionOfRow(cells.row));
  return Text(message_id, std::to_string(cells.count),
              Text(kMsgPlace, number, PosiColumnName(cells.col)));
}

/// A refused cell costs a beep and keeps its text; the status panel says how many there were, and
/// what does not stand as it was pasted.
void Tell(const Outcome& outcome) {
  if (outcome.accepted > 0) frmPosi.PosiChanged = True;
  std::string text = CellsText(kMsgCellsRefused, outcome.refused);
  if (outcome.refused.count > 0) {
    doors.forms->Beep();
    text += RefusalText(outcome.refused.col) + " ";
  }
  text += CellsText(kMsgCommentsCut, outcome.cut) + CellsText(kMsgNumbersRounded, outcome.rounded);
  if (outcome.lines_beyond > 0) text += Text(kMsgLinesBeyond, std::to_string(outcome.lines_beyond));
  if (!text.empty()) TellInStatusPanel(text);
}

void PosiDataLinePaste(const ClipMatrix& matrix) {
  const int col = frmPosi.flgdData.Col;
  const int line_start = AppState.CtMode ? int{kPosi} : 1;
  const Block block = SelectedBlock();
  if (!InBody(block) || (col > 1 && col != line_start && col != FirstShownColumn())) {
    MsgBox(Text(AppState.CtMode ? MsgId(580) : MsgId(393)));
    return;
  }
  Tell(PasteFrom(matrix, block.first_row, 1, block.last_row - block.first_row + 1));
}

void PasteColumn(const ClipMatrix& matrix) {
  const Block block = SelectedBlock();
  if (!InBody(block) || !block.IsColumn() || block.first_col < 1) {
    MsgBox(Text(481));
    return;
  }
  Tell(PasteFrom(matrix, block.first_row, block.first_col, block.last_row - block.first_row + 1));
}

/// True, after telling so, when the text is this view's own, of another unit or mode: its numbers
/// would be taken for something else.
bool IsOfOtherUnit(const std::string& text) {
  if (frmPosi.CopiedText.empty() || text != frmPosi.CopiedText) return false;
  if (frmPosi.CopiedInMm == AppState.DispMmUnit && frmPosi.CopiedAtPrgMode == AppState.CtMode) {
    return false;
  }
  MsgBox(Text(kMsgOtherUnit));
  return true;
}

}  // namespace

void cmdPosiCopy_Click() {
  if (Check_flgdLineNo() != 0) return;
  const Block block = SelectedBlock();
  if (!InBody(block) || block.first_col < 1 || (!block.IsLine() && !block.IsColumn())) {
    MsgBox(Text(335));
    return;
  }
  const std::string text = ClipText(block);
  doors.clipboard->SetText(text);
  frmPosi.CopiedIsLine = block.IsLine();
  frmPosi.CopiedIsColumn = !block.IsLine();
  frmPosi.CopiedText = HoldsPositions(block) ? text : std::string();
  frmPosi.CopiedInMm = AppState.DispMmUnit;
  frmPosi.CopiedAtPrgMode = AppState.CtMode;
}

void PosiDataPaste() {
  const std::string text = doors.clipboard->Text();
  if (IsOfOtherUnit(text)) return;
  const ClipMatrix matrix = ParseClipText(text, kMostRows, kMostCells);
  switch (ClipWidth(matrix)) {
    case kLineColumns:
      PosiDataLinePaste(matrix);
      break;
    case 1:
      PasteColumn(matrix);
      break;
    default:
      MsgBox(Text(336));
  }
}

void cmdPosiPaste_Click() {
  if (Check_flgdLineNo() == 0) PosiDataPaste();
}

}  // namespace tr7
