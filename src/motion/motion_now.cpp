#include "motion/motion_now.h"

#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {

MotionNowRecord MotionNow;

namespace {

constexpr int kNoGuardNote = 5286;

}  // namespace

void BeginAct() {
  MotionNow.StopsBefore = MotionNow.StopsAsked;
  MotionNow.SleptUsBefore = doors.pump->SleptUs();
}

bool StopAsked() { return MotionNow.StopsAsked != MotionNow.StopsBefore; }

bool HasSlept() {
  // Two clocks are read for it, one behind the other.
  constexpr std::int64_t kShortestSleepUs = 100'000;
  return doors.pump->SleptUs() - MotionNow.SleptUsBefore > kShortestSleepUs;
}

bool SomethingMoves() { return MotionNow.Kind != Motion::None || MotionNow.MayRunOn; }
bool MotionIsComing() { return MotionNow.Flow != MoveFlow::None || frmPosi.Teach.JogPending; }

void ShowMotionLamp() {
  FrmMain& f = frmMain;
  f.imgMoving.Visible = SomethingMoves();
  f.cmdStopNow.Enabled = SomethingMoves() || MotionIsComing();
  f.cmdStopNow.ToolTip = Text(f.cmdStopNow.Enabled ? MsgId(5295) : MsgId(5296));
}

void BeginMotion(Motion kind) {
  MotionNow.Kind = kind;
  // A simulated axis ends with the tool.
  MotionNow.Unguarded =
      doors.guard && !doors.guard->Watch(kind == Motion::Jog) && !doors.serial->IsSimulated();
  frmPosi.Readout.TimerAge.Start();
  ShowMotionLamp();
}

void EndMotion() {
  if (MotionNow.Kind == Motion::None) return;
  MotionNow.Kind = Motion::None;
  if (doors.guard) {
    // The line may be another one by now; where it is shut the guard keeps the one that it has.
    if (MotionNow.MayRunOn) {
      doors.guard->Watch(false);
    } else {
      doors.guard->Rest();
    }
  }
  // Behind the last reply, which empties the panel.
  if (MotionNow.Unguarded) TellInStatusPanel(Text(kNoGuardNote));
  ShowMotionLamp();
}

void SetMayRunOn(bool may) {
  const bool settled = MotionNow.MayRunOn && !may;
  MotionNow.MayRunOn = may;
  if (settled && MotionNow.Kind == Motion::None && doors.guard) doors.guard->Rest();
  ShowMotionLamp();
}

}  // namespace tr7
