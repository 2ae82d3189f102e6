#include <string>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "link/port.h"
#include "motion/motion_log.h"
#include "motion/motion_tabs.h"
#include "motion/move_flows.h"
#include "motion/move_prologue.h"
#include "motion/move_steps.h"
#include "motion/present_pos.h"
#include "motion/running_flow.h"
#include "state/app_state.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

constexpr int kMsgRange = 561;
constexpr int kNumberColumn = 1;
constexpr int kFirstNo = 1, kLastNo = 999;
constexpr int kActionStart = 5415, kStarted = 5414;
constexpr int kActionPause = 5265, kActionStop = 5266, kAtStepsEnd = 5513, kGivenUp = 5514;

const std::string& CellOf(int index) {
  return frmPosi.Move.flgdProgram.Text(1 + index, kNumberColumn);
}

bool IsEnded() { return frmPosi.Move.MoveStopReq || frmPosi.Move.MoveTempStop; }

/// The rows from the first on that are done are marked.
void ShowRowsDone(int rows) {
  MotionNow.RowsDone = rows;
  frmPosi.Move.flgdProgram.Touch();
}

/// One row. False: the flow ends.
bool MoveToRow() {
  PosiMoveTest& f = frmPosi.Move;
  const double number = Val(CellOf(f.MoveSelectIndex));
  if (number < kFirstNo || number > kLastNo) {
    TusinPortClose();
    Tell(kMsgRange);
    return false;
  }
  f.MovePosiNo = static_cast<std::int16_t>(number);
  f.lblNextNo.Caption = std::to_string(f.MovePosiNo);
  f.flgdProgram.SelectCell(1 + f.MoveSelectIndex, kNumberColumn);
  ShowRowsDone(f.MoveSelectIndex);
  if (!MoveToPosition(f.MovePosiNo, f.chkNoSqMcr1.Value)) return false;
  ShowRowsDone(f.MoveSelectIndex + 1);
  frmPosi.Readout.lblkanryoNo.Caption = std::to_string(f.MovePosiNo);
  return ReadnDisp_PresentPos() == 0;
}

/// True while there is a row to move to. At an empty row a repeat begins anew; a list that is full
/// has none, and ends behind its last row.
bool HasRow() {
  PosiMoveTest& f = frmPosi.Move;
  if (f.MoveSelectIndex >= kSelectRows) return false;
  const bool row = !CellOf(f.MoveSelectIndex).empty();
  if (row || !f.chkRepeat.Value) return row;
  f.MoveSelectIndex = 0;
  return !CellOf(0).empty();
}

void Steps() {
  PosiMoveTest& f = frmPosi.Move;
  const MotionScope motion(Motion::Move);
  while (HasRow() && !IsEnded()) {
    if (!MoveToRow()) {
      // Stopped on the way, the row is not reached: the next start goes to it, and so it does where
      // a pause was asked for before the step failed.
      if (StopAsked()) f.MoveTempStop = True;
      return;
    }
    ++f.MoveSelectIndex;
    if (IsEnded()) return;
    if (f.chkTimerUse.Value && HasRow())
      WaitBetweenSteps(f.txtTimer.Text, [] { return IsEnded() || MustRest(); });
    if (StopAsked()) {
      f.MoveTempStop = True;
      return;
    }
  }
}

}  // namespace

void cmdSelectMove_Click() {
  PosiMoveTest& f = frmPosi.Move;
  const RunningFlow flow(MoveFlow::Select);
  LogMotion(kActionStart, "", kStarted);
  const bool goes_on = f.MoveTempStop && f.MoveSelectIndex < kSelectRows;
  f.MoveStopReq = f.MoveTempStop = False;
  if (!MovePrologue(IsEnded) || (f.chkRepeat.Value && CellOf(0).empty())) {
    f.MoveTempStop = goes_on && !f.MoveStopReq;
    return;
  }
  if (!goes_on) f.MoveSelectIndex = 0;
  Steps();
  if (f.MoveStopReq) f.MoveTempStop = False;
  f.MoveStopReq = False;
}

void cmdTmpStop_Click() {
  LogMotion(kActionPause, "", kAtStepsEnd);
  frmPosi.Move.MoveTempStop = True;
}

void cmdStop_Click() {
  const bool runs = MotionNow.Flow == MoveFlow::Select;
  LogMotion(kActionStop, "", runs ? MsgId(kAtStepsEnd) : MsgId(kGivenUp));
  if (runs) {
    frmPosi.Move.MoveStopReq = True;
    return;
  }
  frmPosi.Move.MoveTempStop = False;
  frmPosi.Move.MoveSelectIndex = 0;
  ShowKeptPlaces();
}

int SelectPlace() {
  const PosiMoveTest& f = frmPosi.Move;
  if (AppState.Offline || !f.MoveTempStop || f.MoveSelectIndex >= kSelectRows) return 0;
  if (!CellOf(f.MoveSelectIndex).empty()) return f.MoveSelectIndex + 1;
  return f.chkRepeat.Value && !CellOf(0).empty() ? 1 : 0;
}

}  // namespace tr7
