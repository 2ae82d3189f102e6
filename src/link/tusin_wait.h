#pragma once

#include <string>

namespace tr7 {

/// How a queued request ended for its caller.
enum class TusinOutcome {
  Good,
  QueueFull,  ///< nothing was sent
  Failed,     ///< the exchange failed; what was queued has been discarded
  BadStatus,  ///< the exchange reported failure without the failure flag
};

/// Which result counts as the answer to this request.
enum class TusinMatch {
  ThisId,    ///< the id of this request
  LaterToo,  ///< for a wrapped id: this id or above; a result above it means the request is lost
};

/// Queues one request and pumps until it is done. The exchange tells the user of a failure when
/// `show_message` is on.
/// On `Good`, `reply` is the text with CR LF.
TusinOutcome TusinWait(const std::string& command, int reply_length, int timeout_ms,
                       std::string& reply, TusinMatch match = TusinMatch::ThisId,
                       bool show_message = true);

/// The same as 0 success, 1 failure.
int TusinCommand(const std::string& command, int reply_length, int timeout_ms, std::string& reply);

/// Lets what runs come to its end for about 110 ms, then discards everything queued.
void TusinAbort();

}  // namespace tr7
