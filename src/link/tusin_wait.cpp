#include "link/tusin_wait.h"

#include "link/port.h"
#include "link/request_queue.h"
#include "platform/doors.h"
#include "platform/event_pump.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"
#include "state/wait.h"

namespace tr7 {

FailureFollowersRecord FailureFollowers;

namespace {

constexpr int kRestMs = 110;
constexpr int kMsgNowOffline = 5920, kMsgCompleteFirst = 7135;

/// The request's place in the queue, given back on every way out.
class Queued {
 public:
  explicit Queued(TusinRequest& request) : request_(request), has_row_(TusinQueue.Put(request)) {}
  ~Queued() { TusinQueue.TakeOut(request_); }
  Queued(const Queued&) = delete;
  Queued& operator=(const Queued&) = delete;
  explicit operator bool() const { return has_row_; }

 private:
  TusinRequest& request_;
  bool has_row_;
};

std::string ErrorBoxText() {
  std::string text = Text(104) + "\n";
  if (AppState.CtErrorKnown) text += "Error No." + AppState.CtErrorNo + "\n";
  return text + "[" + AppState.CtErrorName + "]";
}

/// In a teaching session the way back online is behind its end.
std::string LostPortWords(bool to_offline) {
  if (!to_offline) return AppState.PortFaultText;
  const std::string told = WithReason(AppState.PortFaultText, Text(kMsgNowOffline));
  return AppState.TeachingNow ? WithReason(told, Text(kMsgCompleteFirst)) : told;
}

std::string WordsFor(TusinEnd end, bool to_offline) {
  switch (end) {
    case TusinEnd::ErrorReply:
    case TusinEnd::ErrorInResync:
      return ErrorBoxText();
    case TusinEnd::TimedOut:
      return Text(100) + "\n\n" + Text(101) + "\n\n" + Text(102) + "\n\n" + Text(103);
    case TusinEnd::PortFailed:
      return Text(109) + "\n\n" + Text(110) + "\n\n" + AppState.PortFaultText;
    case TusinEnd::PortLost:
      return LostPortWords(to_offline);
    case TusinEnd::BadPrefix:
      return Text(104);
    case TusinEnd::BadLength:
      return TwoLines(105, 106);
    case TusinEnd::BadTwice:
      return Text(108);
    default:
      return {};
  }
}

/// Tells the user; where the line is shut until then, the state goes offline behind the box.
void TellFailure(const TusinRequest& request, const TusinOptions& options) {
  // Who takes the failure may still save the session, by a stop over a new connection.
  const std::string text = TusinFailureText(request.end, !options.failure);
  if (options.failure) {
    options.failure->text = text;
    if (request.end == TusinEnd::ErrorReply) options.failure->reply = request.reply;
  }
  if (options.show_message && !options.failure && !text.empty()) MsgBox(text);
  if (TusinQueue.untold != &request) return;
  TusinPortCloseForce();
  SetOffline();
  TusinQueue.untold = nullptr;
}

}  // namespace

std::string TusinFailureText(TusinEnd end, bool to_offline) {
  const std::string text = WordsFor(end, to_offline);
  if (text.empty() || !FailureFollowers.WhatGoesOn) return text;
  return WithReason(text, FailureFollowers.WhatGoesOn(end));
}

std::string TakenFailureText(const TusinFailure& failure) {
  const bool lost = failure.end == TusinEnd::PortLost && AppState.Offline;
  const std::string text = lost ? TusinFailureText(failure.end) : failure.text;
  return text.empty() || failure.since.empty() ? text : text + "\n\n" + failure.since;
}

void TellTakenFailure(const TusinFailure& failure) {
  const std::string text = TakenFailureText(failure);
  if (!text.empty()) MsgBox(text);
}

TusinOutcome TusinWait(const std::string& command, int reply_length, int timeout_ms,
                       std::string& reply, const TusinOptions& options) {
  TusinRequest request;
  request.message = command;
  request.reply_length = reply_length;
  request.timeout_ms = timeout_ms;
  request.priority = options.priority;
  request.may_cancel = options.priority == TusinPriority::Ordinary && !AppState.CancelRequested;
  const Queued queued(request);
  if (!queued) return TusinOutcome::QueueFull;
  while (!request.done) Pump();
  if (options.failure) *options.failure = {request.end, request.sends, {}, {}};
  if (options.sent) *options.sent = {request.end, request.sends};
  switch (request.end) {
    case TusinEnd::Good:
      reply = request.reply;
      return TusinOutcome::Good;
    case TusinEnd::Withdrawn:
      return TusinOutcome::Withdrawn;
    case TusinEnd::GivenUp:
      return TusinOutcome::Failed;
    default:
      TellFailure(request, options);
      if (!options.failure) TusinAbort();
      return TusinOutcome::Failed;
  }
}

int TusinCommand(const std::string& command, int reply_length, int timeout_ms, std::string& reply,
                 TusinPriority priority) {
  const TusinOutcome outcome =
      TusinWait(command, reply_length, timeout_ms, reply, {priority, true});
  return outcome == TusinOutcome::Good ? 0 : 1;
}

void TusinAbort() {
  TusinWaitMs(kRestMs);
  TusinQueueClear();
}

}  // namespace tr7
