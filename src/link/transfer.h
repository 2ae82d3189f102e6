#pragma once

#include <cstddef>
#include <string>

namespace tr7 {

/// How a bulk transfer ended.
inline constexpr int kTransferDone = 0, kTransferFailed = 1, kTransferStopped = 2;

/// What a bulk loop ends as when one of its frames has come to nothing: the cancel button may have
/// ended the wait for it.
int FailedOrStopped();

/// Sends one frame of a bulk read. Its reply begins with the frame itself, or it is the answer to
/// something else, which the user is told. False: that, or a failure that the exchange has told.
bool ReadNamed(const std::string& frame, int reply_length, int timeout_ms, std::string& reply);

/// Sends one frame of a bulk write and compares the first `echo` characters of its reply with its
/// own. False: a failure of the exchange, which has told it, or another echo. That is fatal: the
/// line is closed and the user told.
bool SendEchoed(const std::string& frame, int reply_length, int timeout_ms, std::size_t echo);

/// Tells that what came or came back makes no sense; 1.
int TellBadData();

}  // namespace tr7
