#include <string>

#include "forms/frm_posi.h"
#include "motion/group_range.h"
#include "motion/motion_log.h"
#include "motion/move_flows.h"
#include "motion/move_prologue.h"
#include "motion/move_steps.h"
#include "motion/present_pos.h"
#include "motion/running_flow.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgNotInProgramMode = 1039, kMsgBadRange = 6542;
constexpr int kFirstNo = 1, kLastNo = 999;
constexpr int kActionStart = 5417, kStarted = 5414, kNotSent = 5413;
constexpr int kActionStop = 5266, kAtStepsEnd = 5513;

bool IsGood(const GroupNumbers& range) {
  return range.first >= kFirstNo && range.last <= kLastNo && range.first <= range.last;
}

void Steps(const GroupNumbers& range) {
  PosiMoveTest& f = frmPosi.Move;
  const MotionScope motion(Motion::Move);
  for (int number = range.first; number <= range.last && !f.GrpStopReq; ++number) {
    f.lblNextNo.Caption = std::to_string(number);
    if (!MoveToPosition(number, false)) return;
    frmPosi.Readout.lblkanryoNo.Caption = std::to_string(number);
    if (ReadnDisp_PresentPos() != 0 || StopAsked()) return;
  }
}

}  // namespace

void cmdGrpMove_Click() {
  if (AppState.CtMode) {
    LogMotion(kActionStart, "", kNotSent);
    return Tell(kMsgNotInProgramMode);
  }
  const RunningFlow flow(MoveFlow::Group);
  frmPosi.Move.GrpStopReq = False;
  AppState.GroupMoveStop = False;
  const GroupNumbers range = GroupRange();
  LogMotion(kActionStart, "", IsGood(range) ? MsgId(kStarted) : MsgId(kNotSent));
  if (!IsGood(range)) {
    MsgBox(Text(kMsgBadRange, std::to_string(frmPosi.Move.sldrGrpNo.Value),
                std::to_string(range.first), std::to_string(range.last)));
    return;
  }
  if (MovePrologue([] { return bool(frmPosi.Move.GrpStopReq); })) Steps(range);
  AppState.GroupMoveStop = False;
}

void cmdGrpMoveStop_Click() {
  LogMotion(kActionStop, "", kAtStepsEnd);
  frmPosi.Move.GrpStopReq = True;
  // What a stop of the axes asks is not the group's, and goes on until they stand.
  AppState.GroupMoveStop = !MotionNow.Stopping && !MotionNow.Braking;
}

}  // namespace tr7
