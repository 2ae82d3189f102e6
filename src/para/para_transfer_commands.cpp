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

AxisSettingSentRecord AxisSettingSent;
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
  if (outcome == Outcome::Done) data = ReplyField(reply, kParaDataAt, kParaBlockLength);
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
  return SendRecord({frame, kWriteReplyLength, timeout_ms, kEcho}, BlockName(block));
}

/// Runs `step` for each of these blocks.
Outcome EachBlock(Bulk& bulk, const std::vector<int>& wanted,
                  const std::function<Outcome(int block)>& step) {
  return bulk.Each(0, static_cast<int>(wanted.size()) - 1, [&](int i) { return step(wanted[i]); });
}

/// The axis mask's own form has spoilt what block 0 keeps beside the rows: what it replaced counts.
void MendBlock0(std::string& data) {
  if (!AxisSettingSent.Block0Before.empty() && data == AxisSettingSent.Block0Sent) {
    data = AxisSettingSent.Block0Before;
  }
}

/// `ParamSet` into the blocks. A row that does not fit has been told.
Outcome Fill(const AxisList& axes, ParaBlocks& blocks) {
  MendBlock0(blocks[0]);
  const std::optional<ParaCell> misfit = EncodePara(ParamSet, axes, blocks);
  if (!misfit) return Outcome::Done;
  MsgBox(Text(kMsgMisfit, ParaCellName(*misfit)));
  return Outcome::Failed;
}

/// Reads the blocks, fills and sends them, and has the controller store them.
Outcome WriteBlocks(const AxisList& axes) {
  const std::vector<int> wanted = ParaBlocksFor(axes);
  ParaBlocks blocks;
  Bulk bulk(383, 2 * static_cast<int>(wanted.size()) + 1, Bulk::Cancel::No);
  Outcome outcome =
      EachBlock(bulk, wanted, [&](int block) { return ReadBlock(block, DataOf(blocks, block)); });
  if (outcome == Outcome::Done) outcome = Fill(axes, blocks);
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

Outcome WriteParaToCt() {
  const Outcome outcome = WriteBlocks(AxisList(LiveAxisMask()));
  TusinPortClose();
  if (outcome != Outcome::Done) return outcome;
  AxisSettingSent = {};
  ParaOfCt = {true, LiveAxisMask(), ParamSet};
  return outcome;
}

Outcome WriteAxisSettingToCt() {
  std::string reply;
  if (ReadParaBlock('0', kAxisTimeoutMs, reply) != 0) return Outcome::Failed;
  std::string before(ReplyField(reply, kParaDataAt, kParaBlockLength));
  MendBlock0(before);
  // Meant so: the block character stands at the head of the data as well, and the mask lands away
  // from its place in the block. The parameters that follow put the block right.
  const std::string data = std::string(ReplyField(reply, 4, 12)) + HexPad(AxesInUseMask(), 2) +
                           std::string(ReplyField(reply, 18, 18));
  AxisSettingSent = {before, data};
  return SendBlock(0, data, kAxisTimeoutMs);
}

}  // namespace tr7
