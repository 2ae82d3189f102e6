#include "steps/record_frames.h"

#include "link/port.h"
#include "link/tusin_wait.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

Outcome SendFrame(const RecordFrame& frame, std::string& reply) {
  const TusinOutcome outcome = TusinWait(frame.text, frame.reply_length, frame.timeout_ms, reply);
  if (outcome == TusinOutcome::Withdrawn) return Outcome::Stopped;
  return outcome == TusinOutcome::Good ? Outcome::Done : Outcome::Failed;
}

}  // namespace

Outcome ReadNamed(const RecordFrame& frame, std::string& reply) {
  const Outcome outcome = SendFrame(frame, reply);
  if (outcome != Outcome::Done || reply.starts_with(frame.text)) return outcome;
  return TellBadData();
}

Outcome SendEchoed(const RecordFrame& frame) {
  std::string reply;
  const Outcome outcome = SendFrame(frame, reply);
  if (outcome == Outcome::Failed && frame.unanswered_id) Tell(frame.unanswered_id);
  if (outcome != Outcome::Done) return outcome;
  if (reply.substr(0, frame.echo) == frame.text.substr(0, frame.echo)) return Outcome::Done;
  TusinPortClose();
  return TellBadData();
}

Outcome TellBadData() {
  MsgBox(TwoLines(384, 385));
  return Outcome::Failed;
}

}  // namespace tr7
