#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/bool16.h"
#include "link/exchange.h"

namespace tr7 {

/// Requests that the queue holds at most, the one on the line included.
inline constexpr int kQueueRows = 11;

/// What an answer has told is old this long after it, where none renews it.
inline constexpr std::int64_t kAnswerOldUs = 2'000'000;

enum class TusinPriority {
  Ordinary,
  Start,  ///< starts a movement: a stop that overtakes it withdraws it, it never follows the stop
  Next,   ///< a stop of programs: overtakes all but the stops, also where the queue is full
  Stop,   ///< a stop of axes: the same, and overtakes the stops of programs, which follow it
};

/// One request and what became of it. It belongs to the one who waits for it, on the stack, and is
/// known to the queue until it is done or taken out.
struct TusinRequest {
  std::string message;   ///< command and data, without CR LF
  int reply_length = 0;  ///< with CR LF; 0: any
  int timeout_ms = 0;    ///< of each send, of a stop the last; 0: none
  TusinPriority priority = TusinPriority::Ordinary;
  bool may_cancel = false;  ///< the cancel button, when it is pressed from now on, ends it

  int sends = 0;              ///< how often it has been handed to the port
  bool awaits_reply = false;  ///< its own, not that to a sign of sense
  bool sent_again = false;    ///< a stop, whose sends may each have an answer
  bool done = false;
  TusinEnd end = TusinEnd::GivenUp;
  std::string reply;  ///< with CR LF; of `TusinEnd::Good` and `TusinEnd::ErrorReply`
};

/// The requests that wait for the line, and the one that has it.
struct RequestQueue {
  std::vector<TusinRequest*> waiting;  ///< in the order of service
  TusinRequest* on_line = nullptr;
  Exchange exchange;  ///< of the request on the line
  /// A failed request whose waiter has not told the user and gone offline yet: the line is shut.
  const TusinRequest* untold = nullptr;
  /// A request was withdrawn while its reply may be on the way.
  bool late_reply_possible = false;
  std::int64_t sent_us = 0;  ///< when a line was handed to the port last
  /// Until when, at the line's own pace, what has been handed over leaves and its reply may come.
  std::int64_t line_busy_us = 0;

  bool IsEmpty() const { return waiting.empty() && !on_line; }
  /// False when no row is free: nothing has been queued.
  [[nodiscard]] bool Put(TusinRequest& request);
  /// The request's waiter goes; what has been queued of it is forgotten.
  void TakeOut(const TusinRequest& request);
  /// Brings the next of the waiting requests, of which there is one, to the line.
  TusinRequest& TakeNext();
  /// A stop of axes has overtaken the one on the line, a stop of programs: it goes out behind that.
  void PutBack();
  /// The request on the line is done; its exchange is forgotten.
  void FinishOnLine(TusinEnd end);
  /// Ends the waiting requests that the condition picks; they are done.
  void EndWaiting(TusinEnd end, bool (*picks)(const TusinRequest& request));
  bool StopWaits() const;
  bool StopIsServed() const;
  /// The controller owes an answer for longer than the line and its own work take, or a failure is
  /// being told: what was read before is not being renewed.
  bool IsUnanswered(std::int64_t now_us) const;
};

extern RequestQueue TusinQueue;

/// A stop, of axes or of programs.
bool IsUrgent(const TusinRequest& request);

/// Ends whatever waits for the line as given up, a stop apart.
void TusinQueueClear();

/// The cancel button beside the progress bar has been pressed for this request.
bool IsCancelled(const TusinRequest& request);
/// No request may go out: offline, a failure that is being told, or the tool closes.
bool LineIsBarred();

}  // namespace tr7
