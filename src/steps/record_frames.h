#pragma once

#include <cstddef>
#include <string>

#include "base/msg_id.h"
#include "link/tusin_wait.h"
#include "steps/outcome.h"

namespace tr7 {

// One frame of a bulk transfer. The exchange has told the user of its own failures.

/// A frame and what is known of its reply.
struct RecordFrame {
  std::string text;      ///< without CR LF
  int reply_length = 0;  ///< with CR LF
  int timeout_ms = 0;
  std::size_t echo = 0;      ///< of a write: characters that the reply repeats from the frame
  MsgId unanswered_id = {};  ///< of a write: message told beside the exchange's own; none
};

/// Sends a frame of a read. The whole frame stands at the head of its reply, or that is the answer
/// to something else, which the user is told.
Outcome ReadNamed(const RecordFrame& frame, std::string& reply);

/// Sends a frame of a write and compares the echo. Another echo is fatal: the line is closed
/// and the user told. `sent`, where given, takes what became of this frame on the line.
Outcome SendEchoed(const RecordFrame& frame, TusinSent* sent = nullptr);

/// The same of a record of a write, which `WriteTaken` knows by this name. One that has never been
/// handed to the port is no part of what the controller may have taken.
Outcome SendRecord(const RecordFrame& frame, const std::string& name);
/// The same of the frame at which the controller stores the records that it has taken. One that was
/// cut short has failed: whether they are stored is for the user to know.
Outcome SendStore(const RecordFrame& frame);

/// Tells that what came or came back makes no sense; `Failed`.
Outcome TellBadData();

}  // namespace tr7
