#include "motion/stop.h"

#include <cstdint>

#include "base/scope.h"
#include "forms/hold_button.h"
#include "link/motion_commands.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "link/status_commands.h"
#include "link/tusin.h"
#include "motion/home_state.h"
#include "motion/motion_log.h"
#include "motion/motion_now.h"
#include "motion/present_pos.h"
#include "motion/teaching_session.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kStopTimeoutMs = 1000;
constexpr std::int64_t kLongestBrakingUs = 10'000'000;
constexpr int kMsgMayMove = 6540, kMsgLineHadFailed = 6541;
constexpr int kMsgAlarm = 5500, kMsgStopped = 5506;
constexpr int kActionStop = 5410, kTaken = 5411, kNotTaken = 5412, kNotSent = 5413;
constexpr int kSentAgain = 5507, kAtRest = 5511;

/// What became of a stop.
enum class StopEnd {
  Taken,
  TakenAnew,   ///< over a new connection
  Alarm,       ///< both answers were an alarm's
  Unanswered,  ///< an answer stayed out, or made no sense
};

bool IsTaken(StopEnd end) { return end == StopEnd::Taken || end == StopEnd::TakenAnew; }

bool SendStop(int timeout_ms, TusinFailure& failure) {
  LiftOffline();
  const bool taken = StopToCt(timeout_ms, failure) == 0;
  LogMotion(kActionStop, "0SP", taken ? MsgId(kTaken) : MsgId(kNotTaken));
  return taken;
}

bool IsRefused(const TusinFailure& failure) {
  return failure.end == TusinEnd::ErrorReply || failure.end == TusinEnd::ErrorInResync;
}

StopEnd SendTwice(int timeout_ms) {
  TusinFailure first, second;
  if (SendStop(timeout_ms, first)) return StopEnd::Taken;
  TusinPortCloseForce();
  if (SendStop(kStopTimeoutMs, second)) return StopEnd::TakenAnew;
  return IsRefused(first) && IsRefused(second) ? StopEnd::Alarm : StopEnd::Unanswered;
}

/// The line has been opened anew under what is known of the controller, which may have been off
/// meanwhile: as with any new connection, that holds no more. The flow that is stopped keeps its
/// place, which is on show; its next start homes first.
void ForgetSession() {
  AppState.HomeDone = False;
  ShowHomeState();
  ForgetPresentPos();
  TeachingSession.lost = AppState.TeachingNow;
}

/// Nobody is told.
StopEnd SendStops(int timeout_ms) {
  MotionNow.Stopping = True;
  // It ends the polls of its move without words: not those behind a stop.
  AppState.GroupMoveStop = False;
  const bool was_lost = LineIsBarred();
  const ScopeExit stopped([] { MotionNow.Stopping = False; });
  const StopEnd end = SendTwice(timeout_ms);
  SetMayRunOn(!IsTaken(end));
  if (!IsTaken(end)) SetOffline();
  if (end == StopEnd::TakenAnew || (IsTaken(end) && was_lost)) ForgetSession();
  return end;
}

void TellStop(StopEnd end) {
  if (end == StopEnd::TakenAnew) Tell(kMsgLineHadFailed);
  if (end == StopEnd::Alarm) MsgBox(Text(kMsgAlarm, AppState.CtErrorName));
  if (end == StopEnd::Unanswered) Tell(kMsgMayMove);
}

}  // namespace

bool WaitForBraking(TusinFailure* failure) {
  MotionNow.Braking = True;
  const ScopeExit ended([] { MotionNow.Braking = False; });
  const std::int64_t until_us = doors.pump->NowUs() + kLongestBrakingUs;
  int rest = ReadAlarmFromCt(failure);
  while (rest == 0 && doors.pump->NowUs() < until_us) rest = ReadAlarmFromCt(failure);
  if (rest == 1) LogMotion(kActionStop, "", kAtRest);
  return rest == 1;
}

bool StopAxes(int timeout_ms) {
  const StopEnd end = SendStops(timeout_ms);
  TellStop(end);
  EndLostTeaching();
  return IsTaken(end);
}

bool MayHaveStarted(const TusinFailure& failure) {
  return failure.sends > 1 || (failure.sends == 1 && failure.end != TusinEnd::ErrorReply);
}

void StopUnheard(TusinFailure& failure) {
  const StopEnd end = SendStops(kStopTimeoutMs);
  TusinFailure of_poll;  // one failure is told
  ShowPosBehindStop(IsTaken(end) && WaitForBraking(&of_poll), &of_poll);
  EndMotion();
  if (end == StopEnd::Taken) failure.since = Text(kMsgStopped);
  // The alarm that has ended the motion is told by the flow that met it. A second start that was
  // refused because the first one moves is not what refuses the stop.
  if (end != StopEnd::Alarm || failure.reply != AppState.LastCtErrorText) TellStop(end);
  EndLostTeaching();
}

bool StopAtOnce() {
  // What has been told to end and moves nothing leaves the key to what it is meant for.
  if (!SomethingMoves() && (!MotionIsComing() || StopAsked())) return false;
  const bool moved = SomethingMoves();
  ++MotionNow.StopsAsked;
  // A press that is on its way to its start comes to none.
  LetGoOfHeldButton();
  if (!moved) LogMotion(kActionStop, "", kNotSent);
  if (!SomethingMoves()) return true;
  if (!MotionNow.Stopping) {
    StopAxes(kStopTimeoutMs);
  } else if (TusinStopAgain()) {
    LogMotion(kActionStop, "0SP", kSentAgain);
  }
  return true;
}

void StopBeforeTheEnd() {
  if (SomethingMoves() || MotionIsComing()) StopAtOnce();
}

bool StopBeforeClosing() {
  if (MotionNow.Kind == Motion::None && !MotionIsComing()) return false;
  StopAtOnce();
  if (MotionNow.Flow == MoveFlow::None || MotionNow.Flow == MoveFlow::Teach) return false;
  MotionNow.CloseAsked = True;
  return true;
}

}  // namespace tr7
