#include "motion/stop.h"

#include "base/scope.h"
#include "forms/frm_posi.h"
#include "forms/hold_button.h"
#include "link/motion_commands.h"
#include "link/port.h"
#include "motion/motion_log.h"
#include "motion/motion_now.h"
#include "state/message_box.h"
#include "state/online.h"

namespace tr7 {
namespace {

constexpr int kStopTimeoutMs = 1000;
constexpr int kMsgMayMove = 6540, kMsgLineHadFailed = 6541;
constexpr int kActionStop = 5410, kTaken = 5411, kNotTaken = 5412;

bool SendStop(int timeout_ms) {
  TusinFailure failure;
  LiftOffline();
  const bool taken = StopToCt(timeout_ms, failure) == 0;
  LogMotion(kActionStop, "0SP", taken ? MsgId(kTaken) : MsgId(kNotTaken));
  return taken;
}

}  // namespace

bool StopAxes(int timeout_ms) {
  MotionNow.Stopping = True;
  const ScopeExit stopped([] { MotionNow.Stopping = False; });
  bool taken = SendStop(timeout_ms);
  if (!taken) {
    TusinPortCloseForce();
    taken = SendStop(kStopTimeoutMs);
    if (taken) Tell(kMsgLineHadFailed);
  }
  MotionNow.MayRunOn = !taken;
  ShowMotionLamp();
  if (!taken) {
    SetOffline();
    Tell(kMsgMayMove);
  }
  return taken;
}

bool StopAtOnce() {
  const bool pressed = frmPosi.Teach.JogPending;
  if (MotionNow.Kind == Motion::None && !MotionNow.MayRunOn && !pressed) return false;
  ++MotionNow.StopsAsked;
  // A press that is on its way to its start comes to none.
  LetGoOfHeldButton();
  if (MotionNow.Kind == Motion::None && !MotionNow.MayRunOn) return true;
  if (!MotionNow.Stopping) StopAxes(kStopTimeoutMs);
  return true;
}

void StopBeforeTheEnd() {
  if (MotionNow.Kind != Motion::None) StopAtOnce();
}

}  // namespace tr7
