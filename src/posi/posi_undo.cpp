#include "posi/posi_undo.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "posi/posi_commands.h"
#include "posi/posi_edits.h"
#include "posi/posi_format.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_lines.h"
#include "posi/posi_table.h"
#include "posi/unit_change.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"

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

/// Three decimals tell apart what lies further apart than that.
bool TextsTellPulses(bool mm) {
  constexpr double kFinestMm = 0.001;
  const auto coarse = [](int axis) {
    return DevSetting[axis].Lead > kFinestMm * DevSetting[axis].Ppr;
  };
  return !mm || std::ranges::all_of(AxesInUse(), coarse);
}

/// What was typed stands in the table's lengths at once: they go back to what it holds.
void PutLengthsBack() {
  for (int axis = 0; axis < kAxes; ++axis) {
    for (int n = AppState.PosiFirstNo; n <= AppState.PosiLastNo; ++n) {
      const double held = ValueOf(PosiTable.PosiRec[AxisBase(axis) + kPosi][n]);
      if (PosiTable.PosiPulse[axis][n] == held) continue;
      PosiTable.PosiPulse[axis][n] = static_cast<std::int32_t>(held);
      const DevSettingRecord& device = DevSetting[axis];
      PosiTable.PosiMm[axis][n] = PulseToMm(device.Lead, device.Ppr, held).value_or(kNoMm);
    }
  }
}

/// Who shows the table anew keeps the grid's texts only where they count as changed.
bool TableShowsTheSame() {
  for (int row = kPosiHeaderRows; row < frmPosi.flgdData.Rows(); ++row) {
    const int number = PositionOfRow(row);
    for (int col = 1; col < kPosiColumns; ++col) {
      if (!IsShownColumn(col)) continue;  // a commit fills what is not shown
      if (frmPosi.flgdData.Text(row, col) != PosiCellText(col, number, AppState.CtMode)) {
        return false;
      }
    }
  }
  return true;
}

/// A file holds what the grid shows.
bool IsSaved(const PosiShot& shot) {
  if (shot.changed) return false;
  // Over a commit, pulses come back from texts alone: the file may hold others. What was saved is
  // on the other side of a change of unit.
  if (shot.commits != PosiUndo.commits) return TextsTellPulses(shot.mm || shot.unit_step);
  return TableShowsTheSame();
}

void Show(const PosiShot& shot) {
  Grid& grid = frmPosi.flgdData;
  if (shot.mm != AppState.DispMmUnit) TakePosiUnit(shot.mm);
  FG_HighSyoriStart();
  grid.SetRows(kPosiHeaderRows + static_cast<int>(shot.lines.size()));
  frmPosi.SourceNo.resize(shot.lines.size(), 0);
  for (std::size_t line = 0; line < shot.lines.size(); ++line) {
    ShowLine(static_cast<int>(line), *shot.lines[line], shot.commits == PosiUndo.commits);
  }
  AppState.PosiFirstNo = shot.first;
  PosiLinesChanged();
  PutLengthsBack();
  frmPosi.PosiChanged = !IsSaved(shot);
  grid.SelectCell(std::min(shot.row, grid.Rows() - 1), shot.col);
  FG_HighSyoriEnd();
}

/// What stands at the end of `from` comes back, and what it replaces can be brought back from `to`.
void BringBack(std::vector<PosiShot>& from, std::vector<PosiShot>& to) {
  if (from.empty()) return;
  const PosiShot shot = std::move(from.back());
  from.pop_back();
  KeepPosiShot(to, PosiShotOf(shot));
  to.back().unit_step = shot.unit_step;
  Show(shot);
  EditCommandsBySelection();
}

}  // namespace

void PosiUndoClick() { BringBack(PosiUndo.done, PosiUndo.undone); }
void PosiRedoClick() { BringBack(PosiUndo.undone, PosiUndo.done); }

}  // namespace tr7
