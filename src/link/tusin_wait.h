#pragma once

#include <functional>
#include <string>

#include "link/request_queue.h"

namespace tr7 {

/// How a queued request ended for its caller.
enum class TusinOutcome {
  Good,
  QueueFull,  ///< nothing was sent
  Failed,     ///< this or another request's failure has ended it, or the line is offline
  Withdrawn,  ///< the user cancelled it, or a stop overtook it; nobody has been told
};

/// What became of a request that failed, for a caller that has something to do before it tells.
struct TusinFailure {
  TusinEnd end = TusinEnd::Good;
  int sends = 0;           ///< how often the request has been handed to the port
  std::string text;        ///< the words for the user; empty where there is nothing to tell
  std::string reply = {};  ///< the controller's own, with CR LF; of `TusinEnd::ErrorReply`
  std::string since = {};  ///< what has been done about it by now, to be told behind the words
};

/// How one request ended, and how often it had been handed to the port by then.
struct TusinSent {
  TusinEnd end = TusinEnd::GivenUp;
  int sends = 0;
  /// Refused at its first send. An error reply to a later one leaves open what became of those
  /// before.
  bool RefusedAtOnce() const { return end == TusinEnd::ErrorReply && sends == 1; }
  /// The controller has taken nothing of it.
  bool TookNothing() const { return sends == 0 || RefusedAtOnce(); }
};

/// What goes on without the line is known to higher floors only: who knows of it registers here. It
/// is asked for its words when a failure is about to be told, and switches off what serves no more.
struct FailureFollowersRecord {
  std::function<std::string(TusinEnd end)> WhatGoesOn;
};
extern FailureFollowersRecord FailureFollowers;

/// The words for a failure, with what goes on in spite of it; empty where the user is not told.
/// `to_offline`: the session ends with it, which a port that was lost tells.
std::string TusinFailureText(TusinEnd end, bool to_offline = true);
/// The same for a failure that a caller has taken, as things stand by now: a stop may have saved
/// the session.
std::string TakenFailureText(const TusinFailure& failure);
/// Tells of it, where there is something to tell.
void TellTakenFailure(const TusinFailure& failure);

struct TusinOptions {
  TusinPriority priority = TusinPriority::Ordinary;
  bool show_message = true;  ///< the user is told of a failure of this request
  /// Where given, it takes the failure: nobody is told, and the call returns at once.
  TusinFailure* failure = nullptr;
  TusinSent* sent = nullptr;  ///< takes how it ended, well or not; the user is told all the same
};

/// Queues one request and pumps until it is done. It may be called from any handler, also inside
/// another's wait: each ends with its own outcome, the inner one first. Offline it fails at once.
///
/// An ordinary request ends as withdrawn within 200 ms when the cancel button beside the progress
/// bar is pressed while it waits; a reply that is under way is let in before. What is sent after
/// the press ends as usual.
/// On `Good`, `reply` is the text with CR LF.
[[nodiscard]] TusinOutcome TusinWait(const std::string& command, int reply_length, int timeout_ms,
                                     std::string& reply, const TusinOptions& options = {});

/// The same as 0 success, 1 failure.
[[nodiscard]] int TusinCommand(const std::string& command, int reply_length, int timeout_ms,
                               std::string& reply,
                               TusinPriority priority = TusinPriority::Ordinary);

/// Lets the line come to rest for about 110 ms, then gives up everything queued, a stop apart.
void TusinAbort();

}  // namespace tr7
