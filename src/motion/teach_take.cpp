#include <string>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "link/status_commands.h"
#include "motion/jog.h"
#include "motion/move_steps.h"
#include "motion/present_pos.h"
#include "motion/teach_line.h"
#include "motion/teaching.h"
#include "posi/cell_rules.h"
#include "posi/posi_edits.h"
#include "posi/posi_lines.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgNoLine = 6543, kMsgBeyond = 6544;
constexpr int kMsgNotRead = 5502, kMsgMoves = 5503, kMsgByDistance = 5504, kMsgNoMove = 5505;
constexpr int kAxis1 = 220;

/// Reads anew where the axes stand. A slide that is pushed by hand has no motion of its own to wait
/// for. False after the user has been told.
bool ReadPlace() {
  TusinFailure failure;
  const int rest = frmPosi.Teach.DirectTeaching ? 1 : ReadAlarmFromCt(&failure);
  if (rest == 0) {
    Tell(kMsgMoves);
    return false;
  }
  if (rest == 1 && ReadnDisp_PresentPos(&failure) == 0) return true;
  MsgBox(WithReason(Text(kMsgNotRead), TakenFailureText(failure)));
  return false;
}

/// The axes that the line moves by one of these ways. In program mode the way is part of the
/// position's own cell.
std::string AxesOfWay(int row, int first, int last) {
  std::string names;
  for (const int axis : AxesInUse()) {
    const double way = Val(frmPosi.flgdData.Text(row, AxisBase(axis) + kWay));
    if (AppState.CtMode || way < first || way > last) continue;
    names += (names.empty() ? "" : ", ") + Text(MsgId::At(kAxis1, axis));
  }
  return names;
}

const std::string& Here(int axis) { return frmPosi.Readout.lblPosi[axis].Caption; }

/// A line is taken as a whole or not at all. False after the user has been told.
bool LineTakesPlace(int row) {
  const std::string by_distance = AxesOfWay(row, 2, 3);
  if (!by_distance.empty()) {
    MsgBox(Text(kMsgByDistance, by_distance));
    return false;
  }
  for (const int axis : AxesInUse()) {
    if (ApplyCellRule(AxisBase(axis) + kPosi, Here(axis), AppState.CtMode)) continue;
    Tell(kMsgBeyond);
    return false;
  }
  return true;
}

void TakeInto(int row) {
  const PosiEditStep step;
  Grid& grid = frmPosi.flgdData;
  const int col_before = grid.Col;
  for (const int axis : AxesInUse()) grid.TypeInto(row, AxisBase(axis) + kPosi, Here(axis));
  grid.SelectCell(row, col_before);
  frmPosi.PosiChanged = True;
  const std::string resting = AxesOfWay(row, 0, 0);
  if (!resting.empty()) TellInStatusPanel(Text(kMsgNoMove, resting));
}

/// False after the user has been told.
bool TakePosition() {
  const int row = TeachRow();
  if (row == 0) {
    Tell(kMsgNoLine);
    return false;
  }
  // No axis is moved between the reading and the line.
  JogButtonsOff();
  const bool taken = ReadPlace() && LineTakesPlace(row);
  if (taken) TakeInto(row);
  JogButtonsOn();
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
