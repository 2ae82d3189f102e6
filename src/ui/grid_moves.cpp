// Moving and selecting in the grid: the record's current cell and selection follow keys and mouse.

#include <QGuiApplication>
#include <QHeaderView>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

#include "ui/grid_model.h"
#include "ui/grid_table.h"

namespace tr7 {

int GridTable::NextShownCol(int col, int step) const {
  for (int next = col + step; next >= grid_->FixedCols && next < grid_->Cols(); next += step) {
    if (grid_->ColWidth(next) != 0) return next;
  }
  return col;
}

int GridTable::LastShownCol() const { return NextShownCol(grid_->Cols(), -1); }

int GridTable::PageRows() const {
  return std::max(viewport()->height() / std::max(verticalHeader()->defaultSectionSize(), 1) - 1,
                  1);
}

/// Makes the cell the current one, or the other corner of the selection.
void GridTable::GoTo(int row, int col, bool extend) {
  if (grid_->Rows() <= grid_->FixedRows) return;
  row = std::clamp(row, grid_->FixedRows, grid_->Rows() - 1);
  col = std::clamp(col, grid_->FixedCols, grid_->Cols() - 1);
  const bool downwards = extend && col == grid_->ColSel;
  if (extend && InBody(grid_->Row, grid_->Col)) {
    grid_->Select(grid_->Row, grid_->Col, row, col);
  } else {
    grid_->SelectCell(row, col);
  }
  Push();
  // A selection of lines ends at the last column: growing by a line is no reason to go there.
  const int across = horizontalScrollBar()->value();
  scrollTo(IndexOf(row, col));
  if (downwards) horizontalScrollBar()->setValue(across);
}

/// The current cell is brought into sight, and the input method follows its column.
void GridTable::ShowCurrent() {
  const bool composes =
      grid_->InputMethodOn && InBody(grid_->Row, grid_->Col) && grid_->InputMethodOn(grid_->Col);
  if (testAttribute(Qt::WA_InputMethodEnabled) != composes) {
    setAttribute(Qt::WA_InputMethodEnabled, composes);
    QGuiApplication::inputMethod()->update(Qt::ImEnabled);
  }
  if (InBody(grid_->Row, grid_->Col)) scrollTo(IndexOf(grid_->Row, grid_->Col));
}

/// False: the current cell names no row.
bool GridTable::GoToTarget(bool by_key) {
  if (!grid_->GoToTarget || !grid_->GoToTarget(by_key)) return false;
  Push();
  return true;
}

void GridTable::SelectAll() {
  if (grid_->Rows() <= grid_->FixedRows) return;
  grid_->Select(grid_->FixedRows, grid_->FixedCols, grid_->Rows() - 1, grid_->Cols() - 1);
  Push();
}

void GridTable::SelectRows(int section, bool extend) {
  if (!FinishEdit() || !grid_->Enabled) return;
  setFocus(Qt::MouseFocusReason);
  const int row = BodyRow(section);
  const int anchor = extend && InBody(grid_->Row, grid_->FixedCols) ? grid_->Row : row;
  grid_->Select(anchor, grid_->FixedCols, row, grid_->Cols() - 1);
  Push();
}

void GridTable::SelectCols(int section, bool extend) {
  if (!FinishEdit() || !grid_->Enabled || grid_->Rows() <= grid_->FixedRows) return;
  setFocus(Qt::MouseFocusReason);
  const int col = section + grid_->FixedCols;
  const int anchor = extend && InBody(grid_->FixedRows, grid_->Col) ? grid_->Col : col;
  grid_->Select(grid_->FixedRows, anchor, grid_->Rows() - 1, col);
  Push();
}

bool GridTable::CellAt(const QPoint& at, int& row, int& col) const {
  const QModelIndex index = indexAt(at);
  if (!index.isValid()) return false;
  row = index.row() + grid_->FixedRows;
  col = index.column() + grid_->FixedCols;
  return true;
}

bool GridTable::MoveByKey(const QKeyEvent& key) {
  const bool extend = key.modifiers() & Qt::ShiftModifier;
  const bool far = key.modifiers() & Qt::ControlModifier;
  // With shift the selection's other corner moves, else the current cell.
  const int row = extend ? grid_->RowSel : grid_->Row;
  const int col = extend ? grid_->ColSel : grid_->Col;
  const int first_row = grid_->FixedRows, last_row = grid_->Rows() - 1;
  const int first_col = NextShownCol(grid_->FixedCols - 1, 1), last_col = LastShownCol();
  switch (key.key()) {
    case Qt::Key_Up:
      GoTo(far ? first_row : row - 1, col, extend);
      return true;
    case Qt::Key_Down:
      if (!extend && !far && row == last_row && grid_->DownAtEnd && grid_->DownAtEnd()) {
        Push();
        return true;
      }
      GoTo(far ? last_row : row + 1, col, extend);
      return true;
    case Qt::Key_Left:
      GoTo(row, far ? first_col : NextShownCol(col, -1), extend);
      return true;
    case Qt::Key_Right:
      GoTo(row, far ? last_col : NextShownCol(col, 1), extend);
      return true;
    case Qt::Key_PageUp:
      GoTo(row - PageRows(), col, extend);
      return true;
    case Qt::Key_PageDown:
      GoTo(row + PageRows(), col, extend);
      return true;
    case Qt::Key_Home:
      GoTo(far ? first_row : row, first_col, extend);
      return true;
    case Qt::Key_End:
      GoTo(far ? last_row : row, last_col, extend);
      return true;
    default:
      return false;
  }
}

void GridTable::mousePressEvent(QMouseEvent* event) {
  int row = 0, col = 0;
  const bool list_was_open = ListIsOpen();
  if (!FinishEdit()) return;
  CloseList();
  if (event->button() == Qt::LeftButton && ListArrow().contains(event->position().toPoint())) {
    return list_was_open ? CloseList() : OpenList();
  }
  if (!CellAt(event->position().toPoint(), row, col)) return;
  const auto [top, bottom] = std::minmax(grid_->Row, grid_->RowSel);
  const auto [left, right] = std::minmax(grid_->Col, grid_->ColSel);
  const bool inside = row >= top && row <= bottom && col >= left && col <= right;
  // The popup menu acts on the selection that it was opened on.
  if (event->button() != Qt::LeftButton && inside) return;
  dragging_ = event->button() == Qt::LeftButton;
  GoTo(row, col, dragging_ && event->modifiers() & Qt::ShiftModifier);
}

void GridTable::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_) return;
  const QRect field = viewport()->rect();
  const QPoint at = event->position().toPoint();
  const QPoint within(std::clamp(at.x(), field.left(), field.right()),
                      std::clamp(at.y(), field.top(), field.bottom()));
  int row = 0, col = 0;
  if (!CellAt(within, row, col)) return;
  if (at.y() < field.top()) --row;
  if (at.y() > field.bottom()) ++row;
  if (row != grid_->RowSel || col != grid_->ColSel) GoTo(row, col, true);
}

void GridTable::mouseReleaseEvent(QMouseEvent* event) {
  int row = 0, col = 0;
  const bool clicked = dragging_ && event->button() == Qt::LeftButton;
  dragging_ = false;
  if (!clicked || !grid_->CellClick || !CellAt(event->position().toPoint(), row, col)) return;
  // A hand that has moved on to another cell has drawn a selection.
  if (row == grid_->Row && col == grid_->Col) grid_->CellClick(row, col);
}

void GridTable::mouseDoubleClickEvent(QMouseEvent* event) {
  int row = 0, col = 0;
  if (event->button() != Qt::LeftButton || !FinishEdit()) return;
  if (!CellAt(event->position().toPoint(), row, col)) return;
  GoTo(row, col, false);
  if (grid_->Choose) return ChooseCell();
  if (GoToTarget(false)) return;
  StartEdit(EditStart::InPlace);
}

}  // namespace tr7
