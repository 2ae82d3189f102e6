#include "motion/move_steps.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "link/motion_commands.h"
#include "link/status_commands.h"
#include "motion/motion_log.h"
#include "motion/motion_now.h"
#include "motion/present_pos.h"
#include "motion/stop.h"
#include "platform/doors.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

/// Positions are read this often while axes move: seldom enough that the end is seen at once.
constexpr std::int64_t kShowEveryUs = 250'000;
constexpr int kWaitUnitMs = 100;
constexpr int kMsgMoving = 6546, kMsgSlept = 5508;
constexpr int kActionMove = 5409, kTaken = 5411, kNotTaken = 5412, kNotSent = 5413;
constexpr int kAtRest = 5511, kEndedByStop = 5512;

/// Polls until the axes stand. A failure leaves them moving.
Rest WaitForRest(TusinFailure& failure) {
  std::int64_t shown_us = doors.pump->NowUs();
  while (true) {
    const int rest = ReadAlarmFromCt(&failure);
    if (rest == 1) SetMayRunOn(false);
    // A stop cuts short what is asked meanwhile, and the axes have their ramp still before them.
    if (StopAsked()) {
      failure = {};
      ShowPosBehindStop(rest == 1 || (!MotionNow.MayRunOn && WaitForBraking()));
      return Rest::Stopped;
    }
    if (rest != 0) return rest == 1 ? Rest::Standing : Rest::Failed;
    if (doors.pump->NowUs() - shown_us < kShowEveryUs) continue;
    if (ReadnDisp_PresentPos(&failure) != 0 && !StopAsked()) return Rest::Failed;
    shown_us = doors.pump->NowUs();
  }
}

}  // namespace

bool AxesAreAtRest() {
  const int rest = ReadAlarmFromCt();
  if (rest == 0) TellInStatusPanel(Text(kMsgMoving));
  if (rest == 1) SetMayRunOn(false);
  return rest == 1;
}

bool MustRest() {
  if (StopAsked()) return true;
  if (!HasSlept()) return false;
  ++MotionNow.StopsAsked;
  Tell(kMsgSlept);
  return true;
}

Rest StartAndWait(MsgId action, const std::string& frame,
                  const std::function<int(TusinFailure* failure)>& send, TusinFailure& failure) {
  if (MustRest()) {
    LogMotion(action, "", kNotSent);
    return Rest::Stopped;
  }
  const bool taken = send(&failure) == 0;
  LogMotion(action, frame, taken ? MsgId(kTaken) : MsgId(kNotTaken));
  if (!taken && !StopAsked() && !MayHaveStarted(failure)) return Rest::Failed;
  // Where a stop has overtaken the start, what it has set in motion brakes.
  const bool polls = taken || StopAsked();
  const Rest rest = polls ? WaitForRest(failure) : Rest::Failed;
  if (rest == Rest::Failed) {
    StopUnheard(failure);
  } else {
    LogMotion(action, "", rest == Rest::Standing ? MsgId(kAtRest) : MsgId(kEndedByStop));
  }
  return rest;
}

bool MoveToPosition(int number, bool without_macro) {
  const int kind = without_macro ? 1 : 0;
  const auto send = [=](TusinFailure* failure) { return MoveAxesToCt(number, kind, failure); };
  TusinFailure failure;
  const Rest rest = StartAndWait(kActionMove, MoveAxesFrame(number, kind), send, failure);
  TellTakenFailure(failure);
  return rest == Rest::Standing;
}

void WaitBetweenSteps(const std::string& text, const std::function<bool()>& ended) {
  PosiMoveTest& f = frmPosi.Move;
  f.MoveTimerUp = False;
  f.timerMove.Start(std::max(static_cast<int>(Val(text)) * kWaitUnitMs, 1));
  while (!f.MoveTimerUp && !ended()) Pump();
  f.timerMove.Stop();
}

}  // namespace tr7
