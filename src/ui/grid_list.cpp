// The list that pops up at the current cell. The keys stay with the grid or its editor.

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>

#include "ui/grid_cell_painter.h"
#include "ui/grid_table.h"

namespace tr7 {
namespace {

constexpr int kMostRows = 12, kFrame = 1, kBeside = 40, kNarrowest = 90;

}  // namespace

bool GridTable::ListIsOpen() const { return grid_ && grid_->List.Box && grid_->List.Box->Visible; }

void GridTable::OpenList() {
  if (!grid_->List.Show || !grid_->List.Show()) return;
  if (editor_) grid_->List.Filter(editor_->text().toStdString());
}

void GridTable::CloseList() {
  if (grid_->List.Box) grid_->List.Box->Visible = false;
}

/// The choice takes the place of what is typed.
void GridTable::PickFromList() {
  CloseEditor();
  grid_->List.Box->Click();
  Push();
}

/// Below the cell, or above it where there is more room.
void GridTable::PlaceList() {
  if (!ListIsOpen() || !list_) return;
  const QRect cell = ViewRect({grid_->Row, grid_->Col});
  const int line = std::max(list_->sizeHintForRow(0), fontMetrics().height());
  const int rows = std::clamp(static_cast<int>(grid_->List.Box->List.size()), 1, kMostRows);
  const int below = height() - cell.bottom() - 1, above = cell.top();
  const int wanted = rows * line + 2 * kFrame;
  const bool down = wanted <= below || below >= above;
  const int high = std::min(wanted, down ? below : above);
  const int wide = std::max({list_->sizeHintForColumn(0) + kBeside, cell.width(), kNarrowest});
  list_->setGeometry(cell.left(), down ? cell.bottom() + 1 : cell.top() - high, wide, high);
  list_->raise();
}

/// True when the key was one that the open list takes.
bool GridTable::OnListKey(const QKeyEvent& key) {
  if (!ListIsOpen()) return false;
  ListBox& box = *grid_->List.Box;
  const int last = static_cast<int>(box.List.size()) - 1;
  const auto step = [&](int rows) {
    if (last >= 0) box.ListIndex = std::clamp(box.ListIndex + rows, 0, last);
    return true;
  };
  switch (key.key()) {
    case Qt::Key_Up:
      return step(-1);
    case Qt::Key_Down:
      return step(1);
    case Qt::Key_PageUp:
      return step(-kMostRows);
    case Qt::Key_PageDown:
      return step(kMostRows);
    case Qt::Key_Escape:
      CloseEditor();
      CloseList();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (box.ListIndex < 0) return false;
      PickFromList();
      return true;
    default:
      return false;
  }
}

/// The field of the arrow on the viewport; empty where the current cell has no list.
QRect GridTable::ListArrow() const {
  if (!grid_->List.Box || grid_->Col != grid_->List.Col || !InBody(grid_->Row, grid_->Col)) {
    return {};
  }
  return ListArrowIn(CellRect(grid_->Row, grid_->Col));
}

}  // namespace tr7
