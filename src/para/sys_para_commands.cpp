#include "para/sys_para_commands.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "link/transfer.h"
#include "para/sys_para.h"
#include "state/progress.h"
#include "state/text.h"

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

int ReadBlocks(SysParaRecord& read) {
  ProgressScope progress(Text(368), static_cast<int>(kBlocks.size()), false);
  for (std::size_t i = 0; i < kBlocks.size(); ++i) {
    std::string reply;
    if (!ReadNamed("0RK" + NameOf(i), kReadReplyLength, kReadTimeoutMs, reply)) return 1;
    if (!TakeBlock(reply, kBlocks[i], read)) return TellBadData();
    progress.Advance();
  }
  return 0;
}

bool SendBlock(std::size_t number) {
  const SysBlock& block = kBlocks[number];
  std::string frame = "0WK" + NameOf(number);
  for (std::size_t i = 0; i < FieldsOf(block); ++i) {
    const double value = std::nearbyint(SysPara[block.FirstSlot + i]);
    frame += HexPad(static_cast<std::int64_t>(value), static_cast<int>(block.Width));
  }
  return SendEchoed(frame, kWriteReplyLength, kWriteTimeoutMs,
                    number < kComparedBlocks ? kEcho : 0);
}

int SendBlocks() {
  ProgressScope progress(Text(383), static_cast<int>(kBlocks.size()) + 1, false);
  for (std::size_t i = 0; i < kBlocks.size(); ++i) {
    if (!SendBlock(i)) return 1;
    progress.Advance();
  }
  return SendEchoed("0WF", kCommitReplyLength, kWriteTimeoutMs, kCommitEcho) ? 0 : 1;
}

}  // namespace

int ReadSysParaFromCt() {
  SysParaRecord read{};
  const int result = ReadBlocks(read);
  TusinPortClose();
  if (result == 0) SysParaRead = read;
  return result;
}

int WriteSysParaToCt() {
  const int result = SendBlocks();
  TusinPortClose();
  return result;
}

}  // namespace tr7
