#include "data/grp_commands.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "data/grp_table.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "state/text.h"
#include "steps/bulk.h"
#include "steps/record_frames.h"
#include "steps/whole_table.h"

namespace tr7 {
namespace {

constexpr int kTimeoutMs = 5000;
constexpr int kReadReplyLength = 13;
constexpr int kWriteReplyLength = 7;
constexpr int kCommitReplyLength = 6;
constexpr std::size_t kEcho = 4;
constexpr int kReadBarMax = kGroups - 1;   // full with the last but one
constexpr int kWriteBarMax = kGroups + 1;  // the commit counts

Outcome ReadGroup(int number, GrpTableRecord& read) {
  std::string reply;
  const RecordFrame frame{"0RG" + HexPad(number, 2), kReadReplyLength, kTimeoutMs};
  const Outcome outcome = ReadNamed(frame, reply);
  if (outcome != Outcome::Done) return outcome;
  const std::int32_t start = ReplyValue(reply, 6, 3);
  const std::int32_t end = ReplyValue(reply, 9, 3);
  if (start < 0 || end < 0) return TellBadData();
  read.GrpStart[number] = static_cast<std::int16_t>(start);
  read.GrpEnd[number] = static_cast<std::int16_t>(end);
  return Outcome::Done;
}

Outcome SendGroup(int number) {
  const std::string frame = "0WG" + HexPad(number, 2) + HexPad(GrpTable.GrpStart[number], 3) +
                            HexPad(GrpTable.GrpEnd[number], 3);
  return SendRecord({frame, kWriteReplyLength, kTimeoutMs, kEcho},
                    Text(6518, std::to_string(number)));
}

Outcome ReadGroups(GrpTableRecord& read) {
  return Bulk(368, kReadBarMax, Bulk::Cancel::Yes).Each(1, kGroups, [&](int number) {
    return ReadGroup(number, read);
  });
}

Outcome SendGroups() {
  Bulk bulk(383, kWriteBarMax, Bulk::Cancel::No);
  const Outcome outcome = bulk.Each(1, kGroups, SendGroup);
  if (outcome != Outcome::Done) return outcome;
  return SendStore({"0WE3", kCommitReplyLength, kTimeoutMs, kEcho});
}

}  // namespace

Outcome ReadGrpFromCt() { return ReadWholeTable(GrpStage, ReadGroups); }

Outcome WriteGrpToCt() {
  const Outcome outcome = SendGroups();
  TusinPortClose();
  return outcome;
}

}  // namespace tr7
