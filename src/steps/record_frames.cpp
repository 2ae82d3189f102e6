#include "steps/record_frames.h"

#include "link/port.h"
#include "state/message_box.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

Outcome SendFrame(const RecordFrame& frame, std::string& reply, TusinSent* sent = nullptr) {
  const TusinOutcome outcome =
      TusinWait(frame.text, frame.reply_length, frame.timeout_ms, reply, {.sent = sent});
  if (outcome == TusinOutcome::Withdrawn) return Outcome::Stopped;
  return outcome == TusinOutcome::Good ? Outcome::Done : Outcome::Failed;
}

}  // namespace

Outcome ReadNamed(const RecordFrame& frame, std::string& reply) {
  const Outcome outcome = SendFrame(frame, reply);
  if (outcome != Outcome::Done || reply.starts_with(frame.text)) return outcome;
  return TellBadData();
}

Outcome SendEchoed(const RecordFrame& frame, TusinSent* sent) {
  std::string reply;
  const Outcome outcome = SendFrame(frame, reply, sent);
  if (outcome == Outcome::Failed && frame.unanswered_id) Tell(frame.unanswered_id);
  if (outcome != Outcome::Done) return outcome;
  if (reply.substr(0, frame.echo) == frame.text.substr(0, frame.echo)) return Outcome::Done;
  TusinPortClose();
  return TellBadData();
}

Outcome SendRecord(const RecordFrame& frame, const std::string& name) {
  TusinSent sent;
  const Outcome outcome = SendEchoed(frame, &sent);
  WriteTaken.Repeated |= sent.sends > 1;
  if (outcome == Outcome::Done) {
    if (WriteTaken.First.empty()) WriteTaken.First = name;
    WriteTaken.Last = name;
  } else if (sent.sends > 0) {
    WriteTaken.Failed = name;
    WriteTaken.FailedIsRefused = sent.RefusedAtOnce();
  }
  return outcome;
}

Outcome SendStore(const RecordFrame& frame) {
  using enum WriteTakenRecord::Storing;
  TusinSent sent;
  const Outcome outcome = SendEchoed(frame, &sent);
  WriteTaken.Repeated |= sent.sends > 1;
  if (outcome == Outcome::Done) {
    WriteTaken.Stored = Done;
  } else if (sent.sends > 0) {
    WriteTaken.Stored = sent.RefusedAtOnce() ? Refused : NotKnown;
  }
  return outcome == Outcome::Stopped ? Outcome::Failed : outcome;
}

Outcome TellBadData() {
  MsgBox(TwoLines(384, 385));
  return Outcome::Failed;
}

}  // namespace tr7
