#include "forms/frm_main.h"
#include "link/error_list.h"
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

constexpr int kOpenAttempts = 4;
constexpr int kSends = 4;
constexpr int kPauseMs = 100;
constexpr int kResyncTimeoutMs = 100;
constexpr const char* kResyncCommand = "0CM0";
constexpr const char* kResyncPrefix = "0CM";
constexpr const char* kErrorPrefix = "0%%";

/// What stays the same over the sends of one request.
struct Request {
  std::string message;
  std::string prefix;
  int reply_length;
  std::int16_t id;
  bool show;
};

/// How a step of the exchange ended.
enum class Step {
  Good,        ///< a whole reply of the right prefix and length
  Bad,         ///< wrong prefix or length: the line must be re-synchronised
  ErrorReply,  ///< the controller reported an error
  TimedOut,    ///< no reply to any send
  PortFailed,  ///< the port did not open, or died
  Resynced,    ///< the controller answered the re-synchronisation
  Stopped,     ///< the group move's stop button ended the wait
};

int Publish(int status, const std::string& prefix, std::int16_t id) {
  AppState.TusinResult.status = static_cast<std::int16_t>(status);
  AppState.TusinResult.reply = AppState.TusinReplyText;
  AppState.TusinResult.prefix = prefix;
  AppState.TusinResult.id = id;
  return status;
}

void Show(const Request& request, const std::string& text) {
  if (request.show) MsgBox(text);
}

std::string ErrorBoxText() {
  std::string text = Text(104) + "\n";
  if (AppState.CtErrorKnown) text += "Error No." + AppState.CtErrorNo + "\n";
  return text + "[" + AppState.CtErrorName + "]";
}

void NoteErrorReply() {
  AppState.AlarmOn = True;
  AppState.LastCtErrorText = AppState.TusinReplyText;
  DecodeCtError(AppState.LastCtErrorText);
}

Step OpenPort() {
  AppState.TusinRetryCount = 0;
  while (TusinPortOpen() != 0) {
    ++AppState.TusinRetryCount;
    if (AppState.TusinRetryCount >= kOpenAttempts) return Step::PortFailed;
    TusinWaitMs(kPauseMs);
  }
  AppState.TusinRetryCount = 0;
  return Step::Good;
}

/// Sends one line and arms the time-out; false when the port has died. The reply's length is 0
/// where nobody knows it.
bool SendLine(const std::string& line, int timeout_ms, int reply_length) {
  AppState.TusinTimedOut = False;
  frmMain.timerTimeout.Start(timeout_ms);
  AppState.TusinReplyReady = False;
  doors.serial->ExpectReply(static_cast<std::size_t>(reply_length));
  return doors.serial->Write(line + "\r\n");
}

Step JudgeReply(const Request& request) {
  const std::string& reply = AppState.TusinReplyText;
  if (reply.starts_with(kErrorPrefix)) return Step::ErrorReply;
  if (!reply.starts_with(request.prefix)) {
    AppState.TusinBadReplyKind = 1;
    return Step::Bad;
  }
  if (static_cast<int>(reply.size()) != request.reply_length) {
    AppState.TusinBadReplyKind = 2;
    return Step::Bad;
  }
  return Step::Good;
}

/// Sends the message, at most four times while the controller is silent.
Step SendAndWait(const Request& request) {
  for (;;) {
    AppState.TusinFailed = False;
    if (!SendLine(request.message, AppState.TusinTimeoutMs, request.reply_length)) {
      frmMain.timerTimeout.Stop();
      AppState.PortFaultText = Text(5905, doors.serial->FaultText());
      return Step::PortFailed;
    }
    while (!AppState.TusinReplyReady && !AppState.TusinTimedOut) Pump();
    frmMain.timerTimeout.Stop();
    if (AppState.TusinReplyReady) return JudgeReply(request);
    ++AppState.TusinRetryCount;
    if (AppState.TusinRetryCount >= kSends) return Step::TimedOut;
  }
}

/// Asks the controller for a sign of sense after a bad reply. The wait is bounded: a tool that
/// hangs beside a machine is worse than one that gives up.
Step Resynchronise() {
  if (!SendLine(kResyncCommand, kResyncTimeoutMs, 0)) {
    frmMain.timerTimeout.Stop();
    return Step::Bad;
  }
  while (!AppState.TusinReplyReady && !AppState.GroupMoveStop && !AppState.TusinTimedOut) Pump();
  frmMain.timerTimeout.Stop();
  if (AppState.GroupMoveStop) return Step::Stopped;
  if (!AppState.TusinReplyReady) return Step::Bad;
  if (AppState.TusinReplyText.starts_with(kErrorPrefix)) return Step::ErrorReply;
  return AppState.TusinReplyText.starts_with(kResyncPrefix) ? Step::Resynced : Step::Bad;
}

int Success(const Request& request) {
  AppState.AlarmOn = False;
  frmMain.imgAlarm.Visible = false;
  frmMain.sbStatusBar.Panels[kPanelError].clear();
  SetOnline();
  return Publish(0, request.prefix, request.id);
}

int FailByErrorReply(const Request& request) {
  NoteErrorReply();
  Show(request, ErrorBoxText());
  TusinPortCloseForce();
  SetOffline();
  return Publish(1, request.prefix, request.id);
}

int FailByTimeout(const Request& request) {
  AppState.TusinFailed = True;
  TusinPortCloseForce();
  Show(request, Text(100) + "\n\n" + Text(101) + "\n\n" + Text(102) + "\n\n" + Text(103));
  const int result = Publish(1, request.prefix, request.id);
  SetOffline();
  return result;
}

int FailByPort(const Request& request) {
  TusinPortCloseForce();
  Show(request, Text(109) + "\n\n" + Text(110) + "\n\n" + AppState.PortFaultText);
  SetOffline();
  return Publish(1, request.prefix, request.id);
}

int FailByErrorInResync(const Request& request) {
  NoteErrorReply();
  if (AppState.AlarmNotResettable) TusinPortCloseForce();
  Show(request, ErrorBoxText());
  return Publish(1, kResyncPrefix, request.id);
}

int FailByBadResync(const Request& request) {
  TusinPortClose();
  AppState.TusinFailed = True;
  SetOffline();
  Show(request, AppState.TusinBadReplyKind == 1 ? Text(104) : TwoLines(105, 106));
  return Publish(1, kResyncPrefix, request.id);
}

int FailBySecondBadReply(const Request& request) {
  Show(request, Text(108));
  TusinPortCloseForce();
  SetOffline();
  return Publish(1, request.prefix, request.id);
}

int FailByStop(const Request& request) {
  SetOffline();
  return Publish(1, request.prefix, request.id);
}

}  // namespace

int TusinExchange(const std::string& command, int reply_length, const std::string& data,
                  std::int16_t id, Bool16 show_message) {
  const std::string message = command + data;
  const Request request{message, message.substr(0, 3), reply_length, id, show_message};
  for (bool resent = false;; resent = true) {
    if (OpenPort() != Step::Good) return FailByPort(request);
    switch (SendAndWait(request)) {
      case Step::Good:
        return Success(request);
      case Step::ErrorReply:
        return FailByErrorReply(request);
      case Step::TimedOut:
        return FailByTimeout(request);
      case Step::PortFailed:
        return FailByPort(request);
      default:
        break;
    }
    switch (Resynchronise()) {
      case Step::Stopped:
        return FailByStop(request);
      case Step::ErrorReply:
        return FailByErrorInResync(request);
      case Step::Resynced:
        if (resent) return FailBySecondBadReply(request);
        break;
      default:
        return FailByBadResync(request);
    }
  }
}

}  // namespace tr7
