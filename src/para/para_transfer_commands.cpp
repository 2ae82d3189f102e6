#include "para/para_transfer_commands.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_helpers.h"
#include "device/ct_device.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "para/para_blocks.h"
#include "para/param_set.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/bulk.h"
#include "steps/record_frames.h"

namespace tr7 {

ParaOfCtRecord ParaOfCt;

namespace {

constexpr int kMsgMisfit = 6180;
constexpr int kTimeoutMs = 5000;
constexpr int kAxisTimeoutMs = 2000;
constexpr int kReadReplyLength = 38;
constexpr int kWriteReplyLength = 6;
constexpr std::size_t kEcho = 4;  // command and block character

std::string& DataOf(ParaBlocks& blocks, int block) { return blocks[block]; }

Outcome ReadBlock(int block, std::string& data) {
  std::string reply;
  const std::string frame = std::string("0RD") + ParaBlockChar(block);
  const Outcome outcome = ReadNamed({frame, kReadReplyLength, kTimeoutMs}, reply);
  if (outcome != Outcome::Done) return outcome;
  data = ReplyField(reply, kParaDataAt, kParaBlockLength);
  if (block == 0) MendBlock0(data);
  return outcome;
}

/// A block in the user's words: whose it is.
std::string BlockName(int block) {
  const std::string name(1, ParaBlockChar(block));
  const int of_axes = block - ParaBlockOfAxis(0, 0);
  if (of_axes < 0) return Text(6520, name);
  return Text(6521, name, Text(MsgId::At(220, of_axes / 3)));  // AXIS1 to AXIS4
}

Outcome SendBlock(int block, const std::string& data, int timeout_ms) {
  const std::string frame = std::string("0WD") + ParaBlockChar(block) + data;
  const Outcome outcome =
      SendRecord({frame, kWriteReplyLength, timeout_ms, kEcho}, BlockName(block));
  if (block == 0 && outcome == Outcome::Done) AxisSettingSent = {};
  return outcome;
}

/// Runs `step` for each of these blocks.
Outcome EachBlock(Bulk& bulk, const std::vector<int>& wanted,
                  const std::function<Outcome(int block)>& step) {
  return bulk.Each(0, static_cast<int>(wanted.size()) - 1, [&](int i) { return step(wanted[i]); });
}

/// `ParamSet` into the blocks. A row that does not fit has been told.
Outcome Fill(const AxisList& axes, ParaBlocks& blocks) {
  const std::optional<ParaCell> misfit = EncodePara(ParamSet, axes, blocks);
  if (!misfit) return Outcome::Done;
  MsgBox(Text(kMsgMisfit, ParaCellName(*misfit)));
  return Outcome::Failed;
}

/// Reads the blocks, fills and sends them behind what `ahead` sends, and has the controller store
/// them.
Outcome WriteBlocks(const AxisList& axes, Outcome (*ahead)()) {
  const std::vector<int> wanted = ParaBlocksFor(axes);
  ParaBlocks blocks;
  Bulk bulk(383, 2 * static_cast<int>(wanted.size()) + 1, Bulk::Cancel::No);
  Outcome outcome =
      EachBlock(bulk, wanted, [&](int block) { return ReadBlock(block, DataOf(blocks, block)); });
  if (outcome == Outcome::Done) outcome = Fill(axes, blocks);
  if (outcome == Outcome::Done && ahead) outcome = ahead();
  if (outcome == Outcome::Done) {
    outcome = EachBlock(bulk, wanted, [&](int block) {
      return SendBlock(block, DataOf(blocks, block), kTimeoutMs);
    });
  }
  if (outcome == Outcome::Done) {
    outcome = SendStore({"0WE2", kWriteReplyLength, kTimeoutMs, kEcho});
    bulk.Advance();
  }
  return outcome;
}

Outcome ReadBlocks(const AxisList& axes, ParaBlocks& blocks) {
  const std::vector<int> wanted = ParaBlocksFor(axes);
  Bulk bulk(368, static_cast<int>(wanted.size()), Bulk::Cancel::Yes);
  return EachBlock(bulk, wanted,
                   [&](int block) { return ReadBlock(block, DataOf(blocks, block)); });
}

Outcome WritePara(Outcome (*ahead)()) {
  const Outcome outcome = WriteBlocks(AxisList(LiveAxisMask()), ahead);
  TusinPortClose();
  if (outcome == Outcome::Done) ParaOfCt = {true, LiveAxisMask(), ParamSet};
  return outcome;
}

}  // namespace

Outcome ReadParaFromCt() {
  const int mask = AxesInUseMask();  // a wait may end with other axes
  const AxisList axes(mask);
  ParaBlocks blocks;
  const Outcome outcome = ReadBlocks(axes, blocks);
  TusinPortClose();
  if (outcome != Outcome::Done) return outcome;
  if (!DecodePara(blocks, axes, ParaTable)) return TellBadData();
  ParaOfCt = {true, mask, ParamSetOfTable().value_or(ParamSetRecord{})};
  return Outcome::Done;
}

Outcome WriteParaToCt() { return WritePara(nullptr); }

Outcome WriteAxesAndParaToCt() {
  const Outcome outcome = WritePara(WriteAxisSettingToCt);
  if (outcome != Outcome::Done) PutBlock0Back();
  return outcome;
}

Outcome WriteAxisSettingToCt() {
  std::string reply;
  if (ReadParaBlock('0', kAxisTimeoutMs, reply) != 0) return Outcome::Failed;
  const std::string before(ReplyField(reply, kParaDataAt, kParaBlockLength));
  // Meant so: the block character stands at the head of the data as well, and the mask lands away
  // from its place in the block. The parameters that follow put the block right.
  const std::string data = std::string(ReplyField(reply, 4, 12)) + HexPad(AxesInUseMask(), 2) +
                           std::string(ReplyField(reply, 18, 18));
  const Outcome outcome = SendBlock(0, data, kAxisTimeoutMs);
  // An answer that is lost does not say whether the block was taken.
  AxisSettingSent = {before, data};
  return outcome;
}

}  // namespace tr7
