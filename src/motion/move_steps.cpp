#include "motion/move_steps.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "link/motion_commands.h"
#include "link/status_commands.h"
#include "motion/motion_log.h"
#include "motion/present_pos.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

/// Positions are read this often while axes move: seldom enough that the end is seen at once.
constexpr std::int64_t kShowEveryUs = 250'000;
constexpr int kWaitUnitMs = 100;
constexpr int kMsgMoving = 6546;
constexpr int kActionMove = 5409, kTaken = 5411, kNotTaken = 5412;

}  // namespace

bool AxesAreAtRest() {
  const int rest = ReadAlarmFromCt();
  if (rest == 0) TellInStatusPanel(Text(kMsgMoving));
  return rest == 1;
}

Rest WaitForRest(const MotionScope& motion, TusinFailure* failure) {
  std::int64_t shown_us = doors.pump->NowUs();
  bool braking = false;
  while (true) {
    const int rest = ReadAlarmFromCt(failure);
    if (rest == 1) {
      MotionNow.MayRunOn = False;
      return motion.StopAsked() ? Rest::Stopped : Rest::Standing;
    }
    // A stop cuts short what is asked meanwhile, and the axes have their ramp still before them.
    if (rest == -1 && (braking || !motion.StopAsked())) {
      return braking ? Rest::Stopped : Rest::Failed;
    }
    braking = motion.StopAsked();
    if (braking || doors.pump->NowUs() - shown_us < kShowEveryUs) continue;
    if (ReadnDisp_PresentPos() != 0 && !motion.StopAsked()) return Rest::Failed;
    shown_us = doors.pump->NowUs();
  }
}

bool MoveToPosition(const MotionScope& motion, int number, bool without_macro) {
  const int kind = without_macro ? 1 : 0;
  const bool taken = MoveAxesToCt(number, kind) == 0;
  LogMotion(kActionMove, MoveAxesFrame(number, kind), taken ? MsgId(kTaken) : MsgId(kNotTaken));
  return taken && WaitForRest(motion) == Rest::Standing;
}

void WaitBetweenSteps(const std::string& text, const std::function<bool()>& ended) {
  PosiMoveTest& f = frmPosi.Move;
  f.MoveTimerUp = False;
  f.timerMove.Start(std::max(static_cast<int>(Val(text)) * kWaitUnitMs, 1));
  while (!f.MoveTimerUp && !ended()) Pump();
  f.timerMove.Stop();
}

}  // namespace tr7
