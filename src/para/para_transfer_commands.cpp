#include "para/para_transfer_commands.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_helpers.h"
#include "device/ct_device.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "link/transfer.h"
#include "para/para_blocks.h"
#include "para/param_set.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/progress.h"
#include "state/text.h"

namespace tr7 {

AxisSettingSentRecord AxisSettingSent;

namespace {

constexpr int kMsgMisfit = 6180;
constexpr int kTimeoutMs = 5000;
constexpr int kAxisTimeoutMs = 2000;
constexpr int kWriteReplyLength = 6;
constexpr std::size_t kEcho = 4;  // command and block character

ParaAxes AxesInUse() {
  ParaAxes axes{};
  for (std::size_t axis = 0; axis < kAxes; ++axis) axes[axis] = !AppState.AxisMuko[axis];
  return axes;
}

ParaAxes LiveAxes() {
  ParaAxes axes{};
  for (std::size_t axis = 0; axis < kAxes; ++axis) axes[axis] = IsLiveAxis(axis);
  return axes;
}

int ReadBlock(int block, std::string& data) {
  constexpr int kReplyLength = 38;
  std::string reply;
  if (!ReadNamed(std::string("0RD") + ParaBlockChar(block), kReplyLength, kTimeoutMs, reply)) {
    return FailedOrStopped();
  }
  data = ReplyField(reply, kParaDataAt, kParaBlockLength);
  return kTransferDone;
}

int ReadBlocks(const std::vector<int>& wanted, ParaBlocks& blocks, ProgressScope& progress) {
  for (const int block : wanted) {
    if (AppState.CancelRequested) return kTransferStopped;
    const int result = ReadBlock(block, blocks[static_cast<std::size_t>(block)]);
    if (result != kTransferDone) return result;
    progress.Advance();
  }
  return kTransferDone;
}

int ReadWanted(const ParaAxes& axes, ParaBlocks& blocks) {
  const std::vector<int> wanted = ParaBlocksFor(axes);
  ProgressScope progress(Text(368), static_cast<int>(wanted.size()), true);
  return ReadBlocks(wanted, blocks, progress);
}

bool SendBlock(int block, const std::string& data, int timeout_ms) {
  const std::string frame = std::string("0WD") + ParaBlockChar(block) + data;
  return SendEchoed(frame, kWriteReplyLength, timeout_ms, kEcho);
}

/// The axis mask's own form has spoilt what block 0 keeps beside the rows: what it replaced counts.
void MendBlock0(std::string& data) {
  if (!AxisSettingSent.Block0Before.empty() && data == AxisSettingSent.Block0Sent) {
    data = AxisSettingSent.Block0Before;
  }
}

/// `ParamSet` into the blocks. False when a row does not fit, which the user has been told.
bool Fill(const ParaAxes& axes, ParaBlocks& blocks) {
  MendBlock0(blocks[0]);
  const std::optional<ParaCell> misfit = EncodePara(ParamSet, axes, blocks);
  if (misfit) MsgBox(Text(kMsgMisfit, ParaCellName(*misfit)));
  return !misfit;
}

bool SendBlocks(const std::vector<int>& wanted, const ParaBlocks& blocks, ProgressScope& progress) {
  for (const int block : wanted) {
    if (!SendBlock(block, blocks[static_cast<std::size_t>(block)], kTimeoutMs)) return false;
    progress.Advance();
  }
  const bool stored = SendEchoed("0WE2", kWriteReplyLength, kTimeoutMs, kEcho);
  progress.Advance();
  return stored;
}

int WriteWanted(const ParaAxes& axes) {
  const std::vector<int> wanted = ParaBlocksFor(axes);
  ProgressScope progress(Text(383), 2 * static_cast<int>(wanted.size()) + 1, false);
  ParaBlocks blocks;
  AppState.CancelRequested = False;
  if (ReadBlocks(wanted, blocks, progress) != kTransferDone || !Fill(axes, blocks)) return 1;
  return SendBlocks(wanted, blocks, progress) ? 0 : 1;
}

}  // namespace

int ReadParaFromCt() {
  const ParaAxes axes = AxesInUse();
  ParaBlocks blocks;
  AppState.CancelRequested = False;
  const int result = ReadWanted(axes, blocks);
  TusinPortClose();
  if (result != kTransferDone) return result;
  return DecodePara(blocks, axes, ParaTable) ? kTransferDone : TellBadData();
}

int WriteParaToCt() {
  const int result = WriteWanted(LiveAxes());
  TusinPortClose();
  if (result == 0) AxisSettingSent = {};
  return result;
}

int WriteAxisSettingToCt() {
  int mask = 0;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[static_cast<std::size_t>(axis)]) mask |= 1 << axis;
  }
  std::string reply;
  if (ReadParaBlock('0', kAxisTimeoutMs, reply) != 0) return 1;
  std::string before(ReplyField(reply, kParaDataAt, kParaBlockLength));
  MendBlock0(before);
  // Meant so: the block character stands at the head of the data as well, and the mask lands away
  // from its place in the block. The parameters that follow put the block right.
  const std::string data = std::string(ReplyField(reply, 4, 12)) + HexPad(mask, 2) +
                           std::string(ReplyField(reply, 18, 18));
  AxisSettingSent = {before, data};
  return SendBlock(0, data, kAxisTimeoutMs) ? 0 : 1;
}

}  // namespace tr7
