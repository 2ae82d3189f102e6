#include "forms/frm_main.h"
#include "link/error_list.h"
#include "link/request_queue.h"
#include "link/tusin.h"
#include "platform/doors.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

constexpr int kTusinIntervalMs = 2;

void RearmTusin() { frmMain.TimerTusin.Start(kTusinIntervalMs); }

int ExchangeRow(const RequestRow& row) {
  AppState.TusinExchanging = True;
  const int result = TusinExchange(row.command, row.reply_length, "", row.id, row.show_message);
  AppState.TusinExchanging = False;
  return result;
}

enum class Drained { Empty, Failed, Stopped };

Drained DrainPriorityQueue() {
  RequestQueue& queue = TusinQueues.priority;
  while (queue.has_work) {
    const RequestRow row = queue.rows[0];
    if (row.command.empty()) {
      queue.FoundEmpty();
      return Drained::Stopped;
    }
    if (ExchangeRow(row) != 0) return Drained::Failed;  // the row stays in place
    queue.Shift();
  }
  return Drained::Empty;
}

void ServeOrdinaryQueue() {
  RequestQueue& queue = TusinQueues.ordinary;
  if (!queue.has_work) return;
  const RequestRow row = queue.rows[0];
  if (row.command.empty()) {
    queue.FoundEmpty();
    return;
  }
  const int result = ExchangeRow(row);
  // The request is done either way: a failed one must not go out again by itself.
  queue.Shift();
  if (result != 0) AppState.TusinFailed = True;
}

}  // namespace

bool TimerTusinHasWork() {
  return !AppState.Offline && (TusinQueues.ordinary.has_work || TusinQueues.priority.has_work);
}

void TimerTusinTick() {
  frmMain.TimerTusin.Stop();
  if (!AppState.Offline) {
    const Drained drained = DrainPriorityQueue();
    if (drained == Drained::Stopped) return;  // the timer stays off
    if (drained == Drained::Empty) ServeOrdinaryQueue();
  }
  RearmTusin();
}

bool TimerJusinHasWork() {
  return !AppState.Offline && doors.serial->IsOpen() && doors.serial->InBufferCount() > 0;
}

void TimerJusinTick() {
  if (AppState.Offline || !doors.serial->IsOpen()) return;
  std::string& buffer = AppState.TusinRxBuffer;
  buffer += doors.serial->ReadAll();
  // A line that never ends must not fill the memory; the exchange times out and starts anew.
  constexpr std::size_t kLongestLine = 4096;
  if (buffer.size() > kLongestLine) buffer.clear();
  if (!buffer.ends_with("\r\n")) return;
  AppState.TusinReplyReady = True;
  AppState.TusinReplyText = buffer;
  buffer.clear();
  if (AppState.TusinReplyText.starts_with("0%%")) {
    AppState.AlarmOn = True;
    AppState.LastCtErrorText = AppState.TusinReplyText;
    DecodeCtError(AppState.LastCtErrorText);
  }
}

void TimerTimeoutTick() {
  frmMain.timerTimeout.Stop();
  AppState.TusinTimedOut = True;
}

}  // namespace tr7
