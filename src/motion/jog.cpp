#include "motion/jog.h"

#include <cstdint>
#include <string>

#include "forms/frm_posi.h"
#include "link/motion_commands.h"
#include "link/request_queue.h"
#include "motion/inching.h"
#include "motion/motion_log.h"
#include "motion/motion_now.h"
#include "motion/motion_tabs.h"
#include "motion/move_steps.h"
#include "motion/present_pos.h"
#include "motion/stop.h"
#include "motion/teaching_session.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr std::size_t kMostPending = 9;
constexpr int kReleaseStopMs = 5000;  // while the axis runs
constexpr int kEarlyStopMs = 1000;    // of a start that is still in flight
constexpr int kMostStopTicks = 100;
constexpr int kMsgAtTheEnd = 5293, kMsgBeyond = 5501;
constexpr int kActionJog = 5407, kActionInching = 5408, kActionRelease = 5422;
constexpr int kTaken = 5411, kNotTaken = 5412, kNotSent = 5413;

std::size_t RequestsPending() { return TusinQueue.waiting.size() + (TusinQueue.on_line ? 1 : 0); }

void FocusAway() { doors.forms->SetFocus(frmPosi.Teach.Frame1); }

/// A button towards an end at which the axis stands can move nothing: its user is told why.
void SayAtTheEnd() {
  if (StandsAtEnd(frmPosi.Teach.JogIndex)) TellInStatusPanel(Text(kMsgAtTheEnd));
}

/// The buttons serve the next press.
void EndPress() {
  PosiTeaching& f = frmPosi.Teach;
  f.JogPending = f.JogRunning = False;
  JogButtonsOn();
  FocusAway();
  EndLostTeaching();
}

/// The axis has been stopped, or the user told that it could not be: shows where it came to rest.
void StopJog(int timeout_ms) {
  PosiTeaching& f = frmPosi.Teach;
  const bool stopped = StopAxes(timeout_ms);
  f.JogPending = f.JogRunning = False;
  f.timerJogStop.Stop();
  if (stopped && WaitForBraking() && ReadnDisp_PresentPos() == 0) {
    SayAtTheEnd();
  } else {
    ShowPosBehindStop(false);
  }
  EndMotion();
  EndPress();
}

int InchingStep() {
  const PosiTeaching& f = frmPosi.Teach;
  return f.optInching1.Value ? 1 : f.optInching10.Value ? 10 : f.optInching100.Value ? 100 : 0;
}

/// What a start that was not taken leaves behind: a stop, before anyone is told.
void StartFailed(TusinFailure& failure) {
  if (MayHaveStarted(failure)) StopUnheard(failure);
  EndMotion();
  EndPress();
  TellTakenFailure(failure);
}

void StartJog(int index) {
  PosiTeaching& f = frmPosi.Teach;
  const int percent = f.sldrJogVEL.Value;
  BeginMotion(Motion::Jog);
  f.StartInFlight = True;
  TusinFailure failure;
  const bool taken = JogStartToCt(percent, index, failure) == 0;
  f.StartInFlight = False;
  LogMotion(kActionJog, JogStartFrame(percent, index), taken ? MsgId(kTaken) : MsgId(kNotTaken));
  // A release in the meantime has sent its stop behind the start, and has shown the end of it.
  if (!f.JogPending) return EndPress();
  if (!taken) return StartFailed(failure);
  f.JogRunning = True;
  // The release was seen and given up on, or the hand left with no stop on its way.
  f.JogReleased ? StopJog(kEarlyStopMs) : SayAtTheEnd();
}

/// One step, from before its start to the axis at rest. True: where it stands may be read.
bool MoveAStep(int step, int index) {
  const auto frame = BuildInchingCommand(step, index);
  if (!frame) {
    TellInStatusPanel(Text(StandsAtEnd(index) ? MsgId(kMsgAtTheEnd) : MsgId(kMsgBeyond)));
    LogMotion(kActionInching, "", kNotSent);
    return false;
  }
  TusinFailure failure;
  const auto send = [&frame](TusinFailure* of) { return MoveDirectTextToCt(*frame, of); };
  const MotionScope motion(Motion::Inching);
  const Rest rest = StartAndWait(kActionInching, *frame, send, failure);
  TellTakenFailure(failure);
  return rest != Rest::Failed;
}

/// The session is over, or all must rest: then nothing is to move.
bool GivenUp() { return !frmPosi.Teach.JogPending || MustRest(); }

void Inch(int step, int index) {
  if (ReadnDisp_PresentPos() == 0 && !GivenUp() && MoveAStep(step, index) &&
      ReadnDisp_PresentPos() == 0) {
    SayAtTheEnd();
  }
  EndPress();
}

}  // namespace

void JogButtonsOff() {
  frmPosi.Teach.JogButtonsAreOn = False;
  ShowMotionTabs();
}

void JogButtonsOn() {
  frmPosi.Teach.JogButtonsAreOn = True;
  ShowMotionTabs();
}

void cmdJOG_MouseDown(int index) {
  PosiTeaching& f = frmPosi.Teach;
  const MsgId action = f.optJOG.Value ? MsgId(kActionJog) : MsgId(kActionInching);
  if (!f.JogArmed || RequestsPending() > kMostPending) {
    f.JogPressIgnored = True;
    return LogMotion(action, "", kNotSent);
  }
  f.JogPending = True;
  f.JogPressIgnored = f.JogReleased = f.JogArmed = False;
  f.TimerDelay.Start();
  f.JogIndex = index;
  f.JogIsContinuous = f.optJOG.Value;
  if (!f.JogIsContinuous) JogButtonsOff();
  const int step = InchingStep();  // a choice made under the hand is for the next press
  BeginAct();
  ShowMotionTabs();
  const bool at_rest = AxesAreAtRest();
  // The hand may have left while the controller was asked.
  const bool released = f.JogIsContinuous && f.JogReleased;
  if (!at_rest || released || GivenUp()) {
    LogMotion(action, "", kNotSent);
    EndPress();
    return SettleOnlineState();
  }
  f.JogIsContinuous ? StartJog(index) : Inch(step, index);
}

void cmdJOG_MouseUp(int /*index*/) {
  PosiTeaching& f = frmPosi.Teach;
  f.JogReleased = True;
  // An inching step ends by itself, and its buttons come on with that.
  if (f.JogPressIgnored || !f.JogIsContinuous) return;
  LogMotion(kActionRelease, "", kTaken);
  JogButtonsOff();
  if (!f.JogPending) return EndPress();
  if (f.JogRunning) return StopJog(kReleaseStopMs);
  // The start is still on its way, or has not been sent yet.
  f.JogStopTicks = 0;
  f.timerJogStop.Start();
  if (f.StartInFlight) StopJog(kEarlyStopMs);
}

void timerJogStop_Tick() {
  PosiTeaching& f = frmPosi.Teach;
  if (f.JogRunning && f.JogReleased) {
    f.timerJogStop.Stop();
    StopJog(kEarlyStopMs);
  } else if (!f.JogPending || ++f.JogStopTicks > kMostStopTicks) {
    f.timerJogStop.Stop();
  }
}

void TimerDelay_Tick() {
  frmPosi.Teach.TimerDelay.Stop();
  frmPosi.Teach.JogArmed = True;
}

void ClearJog() {
  PosiTeaching& f = frmPosi.Teach;
  f.TimerDelay.Stop();
  f.timerJogStop.Stop();
  f.JogArmed = f.JogPressIgnored = f.JogReleased = f.JogPending = f.JogRunning = False;
  f.StartInFlight = False;
  f.JogStopTicks = 0;
}

}  // namespace tr7
