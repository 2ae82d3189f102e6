#include "posi/posi_undo.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "forms/frm_posi.h"
#include "posi/posi_commands.h"
#include "posi/posi_edits.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_lines.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

/// A line that goes back over a commit came from no position that the table still holds.
void ShowLine(int line, const PosiLine& of, bool same_table) {
  if (ShowsPosiLine(line, of)) return;
  for (int col = 1; col < kPosiColumns; ++col) {
    frmPosi.flgdData.SetText(kPosiHeaderRows + line, col, of.cells[static_cast<std::size_t>(col)]);
  }
  frmPosi.SourceNo.at(static_cast<std::size_t>(line)) = same_table ? of.source : std::int16_t{0};
}

void Show(const PosiShot& shot) {
  Grid& grid = frmPosi.flgdData;
  FG_HighSyoriStart();
  grid.SetRows(kPosiHeaderRows + static_cast<int>(shot.lines.size()));
  frmPosi.SourceNo.resize(shot.lines.size(), 0);
  for (std::size_t line = 0; line < shot.lines.size(); ++line) {
    ShowLine(static_cast<int>(line), *shot.lines[line], shot.commits == PosiUndo.commits);
  }
  AppState.PosiFirstNo = shot.first;
  PosiLinesChanged();
  // Over a commit, pulses come back from texts alone: the file may hold others.
  frmPosi.PosiChanged = shot.changed || shot.commits != PosiUndo.commits;
  grid.SelectCell(std::min(shot.row, grid.Rows() - 1), shot.col);
  FG_HighSyoriEnd();
}

/// What stands at the end of `from` comes back, and what it replaces can be brought back from `to`.
void BringBack(std::vector<PosiShot>& from, std::vector<PosiShot>& to) {
  if (from.empty()) return;
  const PosiShot shot = std::move(from.back());
  from.pop_back();
  KeepPosiShot(to, PosiShotOf(shot));
  Show(shot);
  EditCommandsBySelection();
}

}  // namespace

void PosiUndoClick() { BringBack(PosiUndo.done, PosiUndo.undone); }
void PosiRedoClick() { BringBack(PosiUndo.undone, PosiUndo.done); }

}  // namespace tr7
