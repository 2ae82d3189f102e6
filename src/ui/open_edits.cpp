#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <vector>

#include "ui/grid_table.h"
#include "ui/qt_form_host.h"

// What the screen knows of edits that are open in its grids.

namespace tr7 {

/// An open edit is finished before a command runs. A refused one stops it and comes to the front,
/// where the bubble at the cell tells why; behind a dialogue nobody could mend it.
bool QtFormHost::MayCommand() {
  const QWidget* modal = QApplication::activeModalWidget();
  for (const auto& [view, shown] : shown_) {
    for (GridTable* grid : shown.bound->Grids()) {
      if ((modal && grid->window() != modal) || grid->FinishEdit()) continue;
      if (grid->Editor()) grid->Editor()->setFocus(Qt::OtherFocusReason);
      BringToFront(shown.bound->Record());
      return false;
    }
  }
  return true;
}

bool QtFormHost::EditIsOpen() const {
  return std::any_of(shown_.begin(), shown_.end(), [](const auto& entry) {
    const std::vector<GridTable*>& grids = entry.second.bound->Grids();
    return std::any_of(grids.begin(), grids.end(),
                       [](const GridTable* grid) { return grid->Editor() != nullptr; });
  });
}

}  // namespace tr7
