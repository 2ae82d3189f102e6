#include <string>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "link/port.h"
#include "motion/home_state.h"
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

constexpr int kMsgRange = 569;
constexpr int kFirstNo = 1, kLastNo = 999;
constexpr int kActionStart = 5416, kStarted = 5414;
constexpr int kActionPause = 5265, kActionStop = 5266, kAtStepsEnd = 5513, kGivenUp = 5514;

std::int16_t NumberIn(const Label& label) { return static_cast<std::int16_t>(Val(label.Caption)); }
std::int16_t StartNo() { return NumberIn(frmPosi.Move.lblStartPosiNo); }
bool IsSingle() { return frmPosi.Move.optMoveWay[1].Value; }
std::int16_t EndNo() { return IsSingle() ? StartNo() : NumberIn(frmPosi.Move.lblEndPosiNo); }

bool IsEnded() { return frmPosi.Move.MoveStop2Req || frmPosi.Move.MoveTempStop2; }

/// Past the range's end a repeat begins anew. True: there is a number to move to.
bool BackToStartAtEnd() {
  PosiMoveTest& f = frmPosi.Move;
  if (f.MoveContNo <= EndNo()) return true;
  f.MoveContNo = StartNo();
  return f.chkRepeat2.Value;
}

bool MoreFollow() { return frmPosi.Move.MoveContNo <= EndNo() || frmPosi.Move.chkRepeat2.Value; }
bool Waits() { return frmPosi.Move.chkTimerUse2.Value && MoreFollow(); }

/// The next number is due now: its command goes out before anything else is asked.
bool NextIsDue() { return !IsEnded() && !IsSingle() && !Waits() && MoreFollow(); }

/// One number. False: the flow ends.
bool MoveToNext() {
  PosiMoveTest& f = frmPosi.Move;
  if (f.MoveContNo < kFirstNo || f.MoveContNo > kLastNo) {
    TusinPortClose();
    Tell(kMsgRange);
    return false;
  }
  f.lblNextNo.Caption = std::to_string(f.MoveContNo);
  if (!MoveToPosition(f.MoveContNo, f.chkNoSqMcr2.Value)) return false;
  ShowHomeState();
  frmPosi.Readout.lblkanryoNo.Caption = std::to_string(f.MoveContNo);
  ++f.MoveContNo;
  return NextIsDue() || ReadnDisp_PresentPos() == 0;
}

void Steps() {
  PosiMoveTest& f = frmPosi.Move;
  const MotionScope motion(Motion::Move);
  const auto ended = [] { return IsEnded() || MustRest(); };
  while (!IsEnded() && BackToStartAtEnd()) {
    if (!MoveToNext() || IsEnded() || IsSingle()) break;
    if (Waits()) WaitBetweenSteps(f.txtTimer2.Text, ended);
    if (ended()) break;
  }
  // Stopped on the way, the place is kept: the next start goes on there.
  if (StopAsked()) f.MoveTempStop2 = True;
}

}  // namespace

void cmdMove_Click() {
  PosiMoveTest& f = frmPosi.Move;
  const RunningFlow flow(MoveFlow::Continue);
  LogMotion(kActionStart, "", kStarted);
  const bool goes_on = f.MoveTempStop2 && !IsSingle() && f.MoveContNo >= StartNo();
  f.MoveStop2Req = f.MoveTempStop2 = False;
  if (!MovePrologue(IsEnded)) {
    f.MoveTempStop2 = goes_on && !f.MoveStop2Req;
    return;
  }
  // A connection on the way has begun another session, which has no place to go on from.
  if (!goes_on || f.MoveContNo < StartNo()) f.MoveContNo = StartNo();
  Steps();
  if (f.MoveContNo > EndNo()) f.MoveContNo = StartNo();
  if (f.MoveStop2Req) f.MoveTempStop2 = False;
  f.MoveStop2Req = False;
}

void cmdTempStop2_Click() {
  LogMotion(kActionPause, "", kAtStepsEnd);
  frmPosi.Move.MoveTempStop2 = True;
}

void cmdStop2_Click() {
  const bool runs = MotionNow.Flow == MoveFlow::Continue;
  LogMotion(kActionStop, "", runs ? MsgId(kAtStepsEnd) : MsgId(kGivenUp));
  if (runs) {
    frmPosi.Move.MoveStop2Req = True;
    return;
  }
  frmPosi.Move.MoveTempStop2 = False;
  frmPosi.Move.MoveContNo = StartNo();
  ShowKeptPlaces();
}

int ContinuePlace() {
  const PosiMoveTest& f = frmPosi.Move;
  const bool kept = f.MoveTempStop2 && !IsSingle() && f.MoveContNo >= StartNo();
  if (AppState.Offline || !kept) return 0;
  if (f.MoveContNo <= EndNo()) return f.MoveContNo;
  return f.chkRepeat2.Value ? StartNo() : 0;
}

}  // namespace tr7
