#include "data/sm_commands.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "data/sm_table.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "state/text.h"
#include "steps/bulk.h"
#include "steps/record_frames.h"
#include "steps/whole_table.h"

namespace tr7 {
namespace {

constexpr int kReadTimeoutMs = 1000;
constexpr int kWriteTimeoutMs = 5000;
constexpr int kReadReplyLength = 39;
constexpr int kWriteReplyLength = 7;
constexpr int kCommitReplyLength = 6;
constexpr std::size_t kEcho = 5;  // command and number
constexpr std::size_t kCommitEcho = 4;
constexpr std::size_t kStepsAt = 6;

using Macro = SmTableRecord::value_type;

/// False when a step is no number.
bool TakeMacro(const std::string& reply, Macro& macro) {
  for (std::size_t s = 0; s < macro.size(); ++s) {
    const std::int32_t command = ReplyValue(reply, kStepsAt + 2 * s, 1);
    const std::int32_t value = ReplyValue(reply, kStepsAt + 2 * s + 1, 1);
    if (command < 0 || value < 0) return false;
    macro[s].Command = static_cast<std::int16_t>(command);
    macro[s].Value = static_cast<std::int16_t>(command == 0 ? 0 : value);
  }
  return true;
}

Outcome ReadMacro(int number, SmTableRecord& read) {
  std::string reply;
  const RecordFrame frame{"0RS" + HexPad(number, 2), kReadReplyLength, kReadTimeoutMs};
  const Outcome outcome = ReadNamed(frame, reply);
  if (outcome != Outcome::Done) return outcome;
  return TakeMacro(reply, read[number - 1]) ? outcome : TellBadData();
}

Outcome SendMacro(int number) {
  std::string frame = "0WS" + HexPad(number, 2);
  for (const SmStep& step : SmTable[number - 1]) {
    frame += HexPad(step.Command, 1) + HexPad(step.Value, 1);
  }
  return SendRecord({frame, kWriteReplyLength, kWriteTimeoutMs, kEcho},
                    Text(6519, std::to_string(number)));
}

Outcome ReadMacros(SmTableRecord& read) {
  return Bulk(368, kMacros, Bulk::Cancel::No).Each(1, kMacros, [&](int number) {
    return ReadMacro(number, read);
  });
}

Outcome SendMacros() {
  Bulk bulk(383, kMacros + 1, Bulk::Cancel::No);
  const Outcome outcome = bulk.Each(1, kMacros, SendMacro);
  if (outcome != Outcome::Done) return outcome;
  return SendStore({"0WE1", kCommitReplyLength, kWriteTimeoutMs, kCommitEcho});
}

}  // namespace

Outcome ReadSmFromCt() { return ReadWholeTable(SmStage, ReadMacros); }

Outcome WriteSmToCt() {
  const Outcome outcome = SendMacros();
  TusinPortClose();
  return outcome;
}

}  // namespace tr7
