#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "forms/frm_main.h"
#include "link/error_list.h"
#include "link/frame_log.h"
#include "link/port.h"
#include "link/tusin.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"
#include "state/wait.h"

namespace tr7 {
namespace {

using Until = Exchange::Until;

constexpr int kSends = 4;
constexpr int kResyncTimeoutMs = 100;
/// What the line gets to bring the answer to a withdrawn request before it counts as dead, behind
/// the time that the request's bytes and its answer's take.
constexpr int kLateReplyTimeoutMs = 1000;
/// A reply that is under way when a wait is cut short is let in: then the line stays in step.
constexpr int kCutShortMs = 150;
constexpr std::int64_t kStopEveryUs = 300'000;
/// Between the sends of a stop, whose last has the whole time-out: an axis that runs on must not
/// wait for that where a frame is lost.
constexpr int kStopAgainMs = 500;
/// 10 bits at 9600, the slowest pace of the line.
constexpr std::int64_t kUsPerByte = 10 * 1'000'000 / 9600;
constexpr std::size_t kPrefixLength = 3;
constexpr const char* kResyncCommand = "0CM0";
constexpr const char* kResyncPrefix = "0CM";
constexpr const char* kErrorPrefix = "0%%";

// What the sequence asks and waits for.

/// A stop waits: this start of a movement is not to follow it, and nothing else holds it up. A stop
/// of programs makes way for one of axes.
bool IsOvertaken(const TusinRequest& request) {
  return TusinQueue.StopWaits() && TusinQueue.waiting.front()->priority > request.priority;
}
/// It must not go out, or not once more.
bool IsWithdrawn(const TusinRequest& request) {
  return IsCancelled(request) || IsOvertaken(request);
}
/// Its reply is not waited for any longer. A start of a movement is given its time: what it has
/// set in motion is known only by its reply. What has no time-out must not hold a stop up.
bool IsCutShort(const TusinRequest& request) {
  const bool start = request.priority == TusinPriority::Start && request.timeout_ms != 0;
  return IsCancelled(request) || (!start && IsOvertaken(request));
}

bool IsPauseOver(const TusinRequest& request) {
  return AppState.TusinTimedOut || IsOvertaken(request);
}
bool IsAnswered(const TusinRequest&) {
  return AppState.TusinReplyReady || AppState.TusinTimedOut || PortIsLost();
}
bool IsAnsweredOrCutShort(const TusinRequest& request) {
  return IsAnswered(request) || IsCutShort(request);
}
bool EndsByGroupMoveStop(const TusinRequest& request) {
  return AppState.GroupMoveStop && !IsUrgent(request);
}
bool IsResyncOver(const TusinRequest& request) {
  return IsAnswered(request) || EndsByGroupMoveStop(request) || IsOvertaken(request);
}

// Its steps.

void StartTimeout(int ms) {
  AppState.TusinTimedOut = False;
  frmMain.timerTimeout.Start(ms);
}

void NoteSent(std::size_t bytes) {
  const std::int64_t now_us = doors.pump->NowUs();
  TusinQueue.sent_us = now_us;
  TusinQueue.line_busy_us =
      std::max(TusinQueue.line_busy_us, now_us) + static_cast<std::int64_t>(bytes) * kUsPerByte;
}

/// What the line needs still for what it has been handed.
int LineBusyMs() {
  const std::int64_t rest_us = TusinQueue.line_busy_us - doors.pump->NowUs();
  return static_cast<int>(std::max<std::int64_t>(rest_us, 0) / 1000);
}

/// Sends one line and arms the time-out; false when the port has died. The reply's length is 0
/// where nobody knows it.
bool SendLine(const std::string& line, int timeout_ms, int reply_length, bool again = false) {
  StartTimeout(timeout_ms);
  AppState.TusinReplyReady = False;
  const auto reply_bytes = static_cast<std::size_t>(reply_length);
  doors.serial->ExpectReply(reply_bytes);
  const std::string bytes = line + "\r\n";
  NoteSent(bytes.size() + reply_bytes);
  FrameLog.Note(again ? FrameEvent::SentAgain : FrameEvent::Sent, bytes);
  return doors.serial->Write(bytes);
}

TusinEnd PortLost() {
  AppState.PortFaultText = LostPortText();
  FrameLog.Note(FrameEvent::PortFailed, AppState.PortFaultText);
  return TusinEnd::PortLost;
}

/// The last of the lines, ends included, that came in one piece.
std::string_view LastLine(std::string_view lines) {
  const std::size_t end = lines.substr(0, lines.size() - 2).rfind("\r\n");
  return end == std::string_view::npos ? lines : lines.substr(end + 2);
}

/// A stop that cut something short may meet the reply to that first, ahead of its own or alone.
/// True: its own is still to come.
bool DropLateReply(const TusinRequest& request) {
  if (!IsUrgent(request) || !TusinQueue.late_reply_possible || !AppState.TusinReplyReady) {
    return false;
  }
  const std::string prefix = request.message.substr(0, kPrefixLength);
  if (AppState.TusinReplyText.starts_with(prefix)) return false;
  TusinQueue.late_reply_possible = false;
  AppState.TusinReplyText = LastLine(AppState.TusinReplyText);
  AppState.TusinReplyReady = AppState.TusinReplyText.starts_with(prefix);
  return !AppState.TusinReplyReady;
}

/// The answers to a stop that was sent once more: all in one piece, or more are still to come.
void TakeOneAnswer() {
  AppState.TusinReplyText = LastLine(AppState.TusinReplyText);
  TusinQueue.late_reply_possible |= !AppState.TusinReplyText.starts_with(kErrorPrefix);
}

/// How an exchange ends that waits for the late reply of another to pass; nothing: it has not, or
/// the controller has answered behind it.
std::optional<TusinEnd> JudgeLateReply(const TusinRequest& request) {
  if (PortIsLost()) return PortLost();
  if (IsWithdrawn(request)) return TusinEnd::Withdrawn;
  TusinQueue.late_reply_possible = false;
  if (!AppState.TusinReplyReady) return TusinEnd::TimedOut;
  const std::string_view line = LastLine(AppState.TusinReplyText);
  if (line.starts_with(kErrorPrefix)) return TusinEnd::ErrorReply;
  TusinQueue.late_reply_possible = !line.starts_with(kResyncPrefix);
  AppState.TusinReplyReady = False;
  return std::nullopt;
}

bool IsStop(const TusinRequest& request) { return request.priority == TusinPriority::Stop; }

/// One more send of the request, the `send`th of `kSends`; false when the port has died.
bool SendRequest(TusinRequest& request, int send) {
  ++request.sends;
  const bool again = request.sends > 1;
  const bool hurries = IsStop(request) && send < kSends;
  const int wait_ms = hurries ? std::min(request.timeout_ms, kStopAgainMs) : request.timeout_ms;
  if (!SendLine(request.message, wait_ms, request.reply_length, again)) return false;
  request.awaits_reply = true;
  return true;
}

TusinEnd JudgeReply(TusinRequest& request) {
  const std::string& reply = AppState.TusinReplyText;
  const bool error = reply.starts_with(kErrorPrefix);
  if (!error) {
    if (!reply.starts_with(request.message.substr(0, kPrefixLength))) {
      FrameLog.JudgeLast(FrameEvent::BadPrefix);
      return TusinEnd::BadPrefix;
    }
    const bool fits =
        request.reply_length == 0 || static_cast<int>(reply.size()) == request.reply_length;
    if (!fits) {
      FrameLog.JudgeLast(FrameEvent::BadLength);
      return TusinEnd::BadLength;
    }
  }
  request.reply = reply;
  return error ? TusinEnd::ErrorReply : TusinEnd::Good;
}

/// How an exchange ends whose bad reply (`verdict`) the controller was asked for sense about;
/// nothing: it answered, and the command may go out once more.
std::optional<TusinEnd> JudgeResync(const TusinRequest& request, TusinEnd verdict) {
  if (IsOvertaken(request)) {
    TusinQueue.late_reply_possible |= !AppState.TusinReplyReady;
    return TusinEnd::Withdrawn;
  }
  const std::string& reply = AppState.TusinReplyText;
  if (EndsByGroupMoveStop(request)) return TusinEnd::GroupMoveStopped;
  if (!AppState.TusinReplyReady) return verdict;
  if (reply.starts_with(kErrorPrefix)) return TusinEnd::ErrorInResync;
  if (reply.starts_with(kResyncPrefix)) return std::nullopt;
  FrameLog.JudgeLast(FrameEvent::BadPrefix);
  return verdict;
}

}  // namespace

bool TusinStopAgain() {
  TusinRequest* request = TusinQueue.on_line;
  const bool unanswered = request && request->awaits_reply && !IsAnswered(*request);
  if (!unanswered || request->priority != TusinPriority::Stop) return false;
  if (doors.pump->NowUs() - TusinQueue.sent_us < kStopEveryUs) return false;
  request->sent_again = true;
  const std::string bytes = request->message + "\r\n";
  NoteSent(bytes.size());
  FrameLog.Note(FrameEvent::SentAgain, bytes);
  return doors.serial->Write(bytes);
}

Exchange TusinExchange(TusinRequest& request) {
  if (PortIsLost()) co_return PortLost();
  for (bool resent = false;; resent = true) {
    for (int attempt = 1; TusinPortOpen() != 0; ++attempt) {
      if (attempt == kPortOpenAttempts) {
        FrameLog.Note(FrameEvent::PortFailed, AppState.PortFaultText);
        co_return TusinEnd::PortFailed;
      }
      StartTimeout(kPortOpenPauseMs);
      co_await Until{IsPauseOver};
      if (IsOvertaken(request)) co_return TusinEnd::Withdrawn;
    }
    if (IsWithdrawn(request)) co_return TusinEnd::Withdrawn;

    // Replies come in order: once the controller has answered this, the late one is past. A stop
    // does not wait for that, a late reply to something else cannot pass for its own.
    bool flush = TusinQueue.late_reply_possible && !IsUrgent(request);
    if (flush && !SendLine(kResyncCommand, kLateReplyTimeoutMs + LineBusyMs(), 0)) {
      co_return PortLost();
    }
    while (flush) {
      co_await Until{IsAnsweredOrCutShort};
      if (const auto end = JudgeLateReply(request)) co_return *end;
      flush = TusinQueue.late_reply_possible;
    }

    for (int sends = 1;; ++sends) {
      request.sent_again |= sends > 1 && IsStop(request);
      if (!SendRequest(request, sends)) co_return PortLost();
      co_await Until{IsAnsweredOrCutShort};
      if (DropLateReply(request)) co_await Until{IsAnswered};
      if (IsCutShort(request)) {
        StartTimeout(kCutShortMs);
        co_await Until{IsAnswered};
      }
      if (AppState.TusinReplyReady) break;
      if (PortIsLost()) co_return PortLost();
      TusinQueue.late_reply_possible |= IsCutShort(request);
      if (IsWithdrawn(request)) co_return TusinEnd::Withdrawn;
      if (sends == kSends) co_return TusinEnd::TimedOut;
    }
    request.awaits_reply = false;
    TusinQueue.line_busy_us = 0;
    if (request.sent_again) TakeOneAnswer();
    const TusinEnd verdict = JudgeReply(request);
    if (verdict != TusinEnd::BadPrefix && verdict != TusinEnd::BadLength) co_return verdict;

    // A sign of sense is asked for after a bad reply, but not ahead of a stop. The wait for it is
    // bounded: a tool that hangs beside a machine is worse than one that gives up.
    if (IsOvertaken(request)) co_return TusinEnd::Withdrawn;
    if (!SendLine(kResyncCommand, kResyncTimeoutMs, 0)) co_return verdict;
    co_await Until{IsResyncOver};
    if (const auto end = JudgeResync(request, verdict)) co_return *end;
    if (resent) co_return TusinEnd::BadTwice;
  }
}

}  // namespace tr7
