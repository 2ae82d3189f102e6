#include "para/sys_para_commands.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "para/sys_para.h"
#include "state/text.h"
#include "steps/bulk.h"
#include "steps/record_frames.h"
#include "steps/whole_table.h"

namespace tr7 {
namespace {

constexpr int kReadTimeoutMs = 3000;
constexpr int kWriteTimeoutMs = 5000;
constexpr int kReadReplyLength = 38;
constexpr int kWriteReplyLength = 6;
constexpr int kCommitReplyLength = 5;
constexpr std::size_t kDataAt = 5;
constexpr std::size_t kDataLength = 32;
constexpr std::size_t kEcho = 4;  // command and block
constexpr std::size_t kCommitEcho = 3;

struct SysBlock {
  std::size_t FirstSlot;
  std::size_t Width;  ///< of one value
};

constexpr std::array<SysBlock, 7> kBlocks{
    {{1, 4}, {9, 4}, {17, 2}, {33, 2}, {49, 4}, {57, 4}, {65, 4}}};
constexpr int kBlockCount = static_cast<int>(kBlocks.size());
/// Meant so: the echo of the later blocks is not looked at.
constexpr std::size_t kComparedBlocks = 3;

std::size_t FieldsOf(const SysBlock& block) { return kDataLength / block.Width; }

std::string NameOf(std::size_t block) { return HexPad(static_cast<std::int64_t>(block), 1); }

/// False when a field is no number.
bool TakeBlock(const std::string& reply, const SysBlock& block, SysParaRecord& read) {
  for (std::size_t i = 0; i < FieldsOf(block); ++i) {
    const std::int32_t value = ReplyValue(reply, kDataAt + i * block.Width, block.Width);
    if (value < 0) return false;
    read[block.FirstSlot + i] = value;
  }
  return true;
}

Outcome ReadBlock(std::size_t number, SysParaRecord& read) {
  std::string reply;
  const RecordFrame frame{"0RK" + NameOf(number), kReadReplyLength, kReadTimeoutMs};
  const Outcome outcome = ReadNamed(frame, reply);
  if (outcome != Outcome::Done || TakeBlock(reply, kBlocks[number], read)) return outcome;
  return TellBadData();
}

Outcome SendBlock(std::size_t number) {
  const SysBlock& block = kBlocks[number];
  std::string frame = "0WK" + NameOf(number);
  for (std::size_t i = 0; i < FieldsOf(block); ++i) {
    const double value = std::nearbyint(SysPara[block.FirstSlot + i]);
    frame += HexPad(static_cast<std::int64_t>(value), static_cast<int>(block.Width));
  }
  return SendRecord(
      {frame, kWriteReplyLength, kWriteTimeoutMs, number < kComparedBlocks ? kEcho : 0},
      Text(6522, NameOf(number)));
}

Outcome ReadBlocks(SysParaRecord& read) {
  return Bulk(368, kBlockCount, Bulk::Cancel::No).Each(0, kBlockCount - 1, [&](int number) {
    return ReadBlock(static_cast<std::size_t>(number), read);
  });
}

Outcome SendBlocks() {
  Bulk bulk(383, kBlockCount + 1, Bulk::Cancel::No);
  const Outcome outcome =
      bulk.Each(0, kBlockCount - 1, [](int number) { return SendBlock(number); });
  if (outcome != Outcome::Done) return outcome;
  return SendStore({"0WF", kCommitReplyLength, kWriteTimeoutMs, kCommitEcho});
}

}  // namespace

Outcome ReadSysParaFromCt() { return ReadWholeTable(SysParaRead, ReadBlocks); }

Outcome WriteSysParaToCt() {
  const Outcome outcome = SendBlocks();
  TusinPortClose();
  return outcome;
}

}  // namespace tr7
