#include "steps/record_frames.h"

#include "link/port.h"
#include "link/tusin_wait.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

Outcome SendFrame(const RecordFrame& frame, std::string& reply, TusinFailure* failure = nullptr) {
  const TusinOutcome outcome =
      TusinWait(frame.text, frame.reply_length, frame.timeout_ms, reply, {.failure = failure});
  if (failure && outcome == TusinOutcome::Failed) {
    if (!failure->text.empty()) MsgBox(failure->text);
    TusinAbort();
  }
  if (outcome == TusinOutcome::Withdrawn) return Outcome::Stopped;
  return outcome == TusinOutcome::Good ? Outcome::Done : Outcome::Failed;
}

}  // namespace

Outcome ReadNamed(const RecordFrame& frame, std::string& reply) {
  const Outcome outcome = SendFrame(frame, reply);
  if (outcome != Outcome::Done || reply.starts_with(frame.text)) return outcome;
  return TellBadData();
}

Outcome SendEchoed(const RecordFrame& frame, TusinFailure* failure) {
  std::string reply;
  const Outcome outcome = SendFrame(frame, reply, failure);
  if (outcome == Outcome::Failed && frame.unanswered_id) Tell(frame.unanswered_id);
  if (outcome != Outcome::Done) return outcome;
  if (reply.substr(0, frame.echo) == frame.text.substr(0, frame.echo)) return Outcome::Done;
  TusinPortClose();
  return TellBadData();
}

Outcome SendRecord(const RecordFrame& frame, const std::string& name) {
  const Outcome outcome = SendEchoed(frame);
  if (outcome == Outcome::Done) {
    if (WriteTaken.First.empty()) WriteTaken.First = name;
    WriteTaken.Last = name;
  } else {
    WriteTaken.Failed = name;
    WriteTaken.FailedIsRefused = AppState.AlarmOn;
  }
  return outcome;
}

Outcome SendStore(const RecordFrame& frame) {
  using enum WriteTakenRecord::Storing;
  const Outcome outcome = SendEchoed(frame);
  WriteTaken.Stored = outcome == Outcome::Done ? Done : AppState.AlarmOn ? Refused : NotKnown;
  return outcome;
}

Outcome TellBadData() {
  MsgBox(TwoLines(384, 385));
  return Outcome::Failed;
}

}  // namespace tr7
