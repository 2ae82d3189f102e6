#include <string>

#include "forms/frm_posi.h"
#include "motion/teach_line.h"
#include "motion/teaching.h"
#include "posi/posi_lines.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

constexpr int kMsgNoLine = 6543, kMsgBeyond = 6544;

/// False after the user has been told.
bool TakePosition() {
  Grid& grid = frmPosi.flgdData;
  const int row = TeachRow();
  if (row == 0) {
    Tell(kMsgNoLine);
    return false;
  }
  const int col_before = grid.Col;
  bool taken = true;
  for (const int axis : AxesInUse()) {
    const std::string& here = frmPosi.Readout.lblPosi[axis].Caption;
    taken = grid.TypeInto(row, AxisBase(axis) + kPosi, here) == 0 && taken;
  }
  grid.SelectCell(row, col_before);
  frmPosi.PosiChanged = True;
  if (!taken) Tell(kMsgBeyond);
  return taken;
}

}  // namespace

void cmdJOGWrite_Click() { static_cast<void>(TakePosition()); }

void cmdJOGWriteNext_Click() {
  if (!TakePosition()) return;
  Grid& grid = frmPosi.flgdData;
  if (grid.Row + 1 < grid.Rows() || AppendLine()) grid.SelectCell(grid.Row + 1, grid.Col);
  ShowTeachLine();
}

}  // namespace tr7
