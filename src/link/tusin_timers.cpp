#include <algorithm>

#include "forms/frm_main.h"
#include "link/error_list.h"
#include "link/frame_log.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "link/tusin.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/online.h"

namespace tr7 {
namespace {

bool Every(const TusinRequest&) { return true; }

/// A stop is let through where the line is barred only by a failure that has not been told yet:
/// what moves must be stopped before anyone is told.
bool StopMayGo() {
  const bool stop = TusinQueue.StopWaits() || TusinQueue.StopIsServed();
  return stop && !AppState.Closing && !AppState.Offline;
}

bool IsNoStop(const TusinRequest* request) { return request && !IsUrgent(*request); }

/// There is a request that must not go out.
bool MustGiveUp() {
  const RequestQueue& queue = TusinQueue;
  if (!LineIsBarred() || queue.IsEmpty()) return false;
  return !StopMayGo() || IsNoStop(queue.on_line) ||
         std::any_of(queue.waiting.begin(), queue.waiting.end(), IsNoStop);
}

void GiveUp() {
  const bool all = !StopMayGo();
  if (TusinQueue.on_line && (all || IsNoStop(TusinQueue.on_line))) {
    TusinQueue.FinishOnLine(TusinEnd::GivenUp);
  }
  all ? TusinQueue.EndWaiting(TusinEnd::GivenUp, Every) : TusinQueueClear();
}

/// A good reply means that the line is online and that no alarm stands.
void NoteSuccess() {
  AppState.AlarmOn = False;
  frmMain.imgAlarm.Visible = false;
  frmMain.sbStatusBar.Panels[kPanelError].clear();
  SetOnline();
}

/// What holds from the moment an exchange has failed, however long its waiter takes to tell of it.
void NoteFailure(const TusinRequest& request) {
  switch (request.end) {
    case TusinEnd::TimedOut:
    case TusinEnd::PortFailed:
    case TusinEnd::PortLost:
      TusinPortCloseForce();
      TusinQueue.untold = &request;
      break;
    case TusinEnd::ErrorReply:
    case TusinEnd::BadTwice:
      TusinQueue.untold = &request;
      break;
    case TusinEnd::BadPrefix:
    case TusinEnd::BadLength:
      if (!AppState.PortOccupy) TusinPortCloseForce();
      SetOffline();
      break;
    case TusinEnd::ErrorInResync:
      if (AppState.AlarmNotResettable) TusinPortCloseForce();
      break;
    default:
      SetOffline();
  }
  // The others' requests were meant for a line in order.
  TusinQueueClear();
  if (TusinQueue.StopWaits()) LiftOffline();
  if (MustGiveUp()) GiveUp();
}

void Settle(TusinRequest& request, TusinEnd end) {
  // Only a stop of axes withdraws a stop of programs, and forgets nothing by it.
  if (end == TusinEnd::Withdrawn && IsUrgent(request)) return TusinQueue.PutBack();
  TusinQueue.FinishOnLine(end);
  if (end == TusinEnd::Withdrawn) return;
  if (end == TusinEnd::Good) return NoteSuccess();
  NoteFailure(request);
}

}  // namespace

bool TimerTusinHasWork() {
  const RequestQueue& queue = TusinQueue;
  if (queue.IsEmpty()) return false;
  if (MustGiveUp() || !queue.on_line || queue.exchange.IsReady(*queue.on_line)) return true;
  return std::any_of(queue.waiting.begin(), queue.waiting.end(),
                     [](const TusinRequest* row) { return IsCancelled(*row); });
}

void TimerTusinTick() {
  RequestQueue& queue = TusinQueue;
  if (MustGiveUp()) GiveUp();
  queue.EndWaiting(TusinEnd::Withdrawn, IsCancelled);
  if (queue.IsEmpty()) return;
  if (!queue.on_line) queue.exchange = TusinExchange(queue.TakeNext());
  if (queue.exchange.IsReady(*queue.on_line)) queue.exchange.Resume();
  if (queue.exchange.IsOver()) Settle(*queue.on_line, queue.exchange.End());
}

bool TimerJusinHasWork() {
  return !AppState.Offline && doors.serial->IsOpen() && doors.serial->InBufferCount() > 0;
}

void TimerJusinTick() {
  if (AppState.Offline || !doors.serial->IsOpen()) return;
  std::string& buffer = AppState.TusinRxBuffer;
  buffer += doors.serial->ReadAll();
  // A line that never ends must not fill the memory; the exchange times out and starts anew.
  // The longest is a program of 255 steps, and another one may come late in the same piece.
  constexpr std::size_t kLongestReply = 255 * 19 + 7, kLongestLine = 2 * kLongestReply;
  if (buffer.size() > kLongestLine) {
    FrameLog.Note(FrameEvent::BadLength, buffer);
    buffer.clear();
  }
  if (!buffer.ends_with("\r\n")) return;
  AppState.TusinReplyReady = True;
  AppState.TusinReplyText = buffer;
  buffer.clear();
  FrameLog.Note(FrameEvent::Received, AppState.TusinReplyText);
  if (AppState.TusinReplyText.starts_with("0%%")) {
    AppState.AlarmOn = True;
    AppState.HomeDone = False;
    AppState.LastCtErrorText = AppState.TusinReplyText;
    ErrorHyoji();
  }
}

void TimerTimeoutTick() {
  frmMain.timerTimeout.Stop();
  AppState.TusinTimedOut = True;
  // The pause between two attempts at a port that does not open is no time-out of anyone's answer.
  if (doors.serial->IsOpen()) FrameLog.Note(FrameEvent::TimedOut, AppState.TusinRxBuffer);
}

}  // namespace tr7
