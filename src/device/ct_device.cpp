#include "device/ct_device.h"

#include <string_view>

#include "base/text_helpers.h"
#include "device/ct_blocks.h"
#include "device/dev_setting.h"
#include "link/reply_fields.h"
#include "link/status_commands.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/record_frames.h"

namespace tr7 {

AxisArray<CtDeviceRecord> CtDev;
AxisSettingSentRecord AxisSettingSent;

namespace {

constexpr int kBlockReplyLength = 38;
constexpr int kBlockTimeoutMs = 2000;

int BadData() {
  static_cast<void>(TellBadData());
  return 1;
}

/// Axes in use of a block 0; -1 when the field is no number.
int AxisMask(std::string_view block0) { return ReplyValue(block0, 7, 2); }

/// Also known as ReadCtBlock0.
int ReadBlock0(std::string& reply) {
  if (CtComStart() != 0) return 1;  // opens the port, and tells where it stays shut
  if (ReadParaBlock('0', kBlockTimeoutMs, reply) != 0) return 1;
  return AxisMask(reply) < 0 ? BadData() : 0;
}

/// False when a field of the block is no number.
bool TakeDeviceBlock(std::string_view reply, CtDeviceRecord& device) {
  device.Type = ReplyValue(reply, 5, 2);
  device.Lead = ReplyValue(reply, 7, 2);
  device.Ppr = ReplyValue(reply, 9, 4);
  device.MaxPulse = ReplyValue(reply, 13, 6);
  const int stroke_low = ReplyValue(reply, 25, 2);
  const int stroke_high = ReplyValue(reply, 27, 2);
  TakeDeviceTexts(std::string(ReplyField(reply, 21, 2)), std::string(ReplyField(reply, 23, 2)),
                  device.Size, device.Speed);
  if (stroke_low < 0 || stroke_high < 0) return false;
  device.Stroke = stroke_high * 256 + stroke_low;
  return device.Type >= 0 && device.Lead >= 0 && device.Ppr >= 0 && device.MaxPulse >= 0;
}

int ReadAxisDevice(int axis, CtDeviceRecord& device) {
  std::string reply;
  if (ReadParaBlock(ParaBlockChar(ParaBlockOfAxis(axis, 1)), 3000, reply) != 0) return 1;
  device.PgCode = ReplyValue(reply, 21, 2);
  if (ReadParaBlock(ParaBlockChar(ParaBlockOfAxis(axis, 2)), 1000, reply) != 0) return 1;
  if (device.PgCode >= 0 && TakeDeviceBlock(reply, device)) return 0;
  return BadData();
}

/// Writes block 0 as it stands in `data` (32 characters).
int WriteBlock0(const std::string& data, TusinSent* sent = nullptr) {
  if (SendEchoed({"0WD0" + data, 6, kBlockTimeoutMs, 4}, sent) != Outcome::Done) return 1;
  AxisSettingSent = {};
  return 0;
}

}  // namespace

void MendBlock0(std::string& data) {
  const AxisSettingSentRecord& sent = AxisSettingSent;
  if (!sent.Block0Before.empty() && data == sent.Block0Sent) data = sent.Block0Before;
}

void PutBlock0Back() {
  if (AxisSettingSent.Block0Before.empty() || AppState.Offline || AppState.AlarmOn) return;
  static_cast<void>(WriteBlock0(AxisSettingSent.Block0Before));  // a failure has been told
}

int ReadParaBlock(char block, int timeout_ms, std::string& reply) {
  // All blocks have one length and one prefix: another block's late reply must not pass for this.
  const RecordFrame frame{std::string("0RD") + block, kBlockReplyLength, timeout_ms};
  if (ReadNamed(frame, reply) != Outcome::Done) return 1;
  if (block != '0') return 0;
  std::string data(ReplyField(reply, kParaDataAt, kParaBlockLength));
  MendBlock0(data);
  reply.replace(kParaDataAt - 1, kParaBlockLength, data);
  return 0;
}

int ReadCtAxisFromCt() {
  std::string reply;
  if (ReadBlock0(reply) != 0) return 1;
  AppState.AxisPattern = static_cast<std::int16_t>(AxisMask(reply));
  AppState.AxisMuko = MukoOfMask(AxisMask(reply));
  return 0;
}

int ReadCtModeAndAxis() {
  std::string reply;
  if (ReadBlock0(reply) != 0) return 1;
  AppState.AxisPatternOfCt = static_cast<std::int16_t>(AxisMask(reply));
  AppState.AxisMukoOfCt = MukoOfMask(AxisMask(reply));
  AppState.CtModeOfCt = ReplyValue(reply, 23, 2) == 1;
  return 0;
}

int CompareCtModeAndAxis() {
  if (ReadCtModeAndAxis() != 0) return -1;
  const int axes = AppState.AxisMuko == AppState.AxisMukoOfCt ? 0 : 1;
  return axes + (AppState.CtMode == AppState.CtModeOfCt ? 0 : 2);
}

int ReadCtDeviceFromCt() {
  AxisArray<CtDeviceRecord> read;
  for (const int axis : AxesInUse()) {
    if (ReadAxisDevice(axis, read[axis]) != 0) return 1;
  }
  CtDev = read;
  return 0;
}

bool DeviceDiffersFromCt(int axis) {
  const DevSettingRecord& pc = DevSetting[axis];
  const CtDeviceRecord& ct = CtDev[axis];
  const bool pg_differs = pc.WithPG ? ct.PgCode == 0 : ct.PgCode == 1 || ct.PgCode == 2;
  return pc.Lead != ct.Lead || pc.Ppr != ct.Ppr || AppState.StrokePulse[axis] != ct.MaxPulse ||
         pc.Size != ct.Size || pc.Speed != ct.Speed || pc.Stroke != ct.Stroke || pg_differs;
}

int CompareCtDevice() {
  if (ReadCtModeAndAxis() != 0) return -1;
  if (AppState.AxisMuko != AppState.AxisMukoOfCt) return 1;
  if (ReadCtDeviceFromCt() != 0) return -1;
  for (const int axis : AxesInUse()) {
    if (DeviceDiffersFromCt(axis)) return 1;
  }
  return 0;
}

int ReadCtBlock1(AxisArray<std::int32_t>& values) {
  std::string reply;
  if (ReadParaBlock('1', kBlockTimeoutMs, reply) != 0) return 1;
  AxisArray<std::int32_t> read{};
  for (int axis = 0; axis < kAxes; ++axis) {
    read[axis] = ReplyValue(reply, 13 + 2 * axis, 2);
    if (read[axis] < 0) return BadData();
  }
  values = read;
  return 0;
}

int ReadAxisMaxPulse(int axis, std::int32_t& pulses) {
  std::string reply;
  if (ReadParaBlock(ParaBlockChar(ParaBlockOfAxis(axis, 2)), kBlockTimeoutMs, reply) != 0) return 1;
  const std::int32_t read = ReplyValue(reply, 13, 6);
  if (read < 0) return BadData();
  pulses = read;
  return 0;
}

int ReadAxisMaxPulseFromCt(AxisArray<std::int32_t>& pulses) {
  AxisArray<std::int32_t> read{};
  for (const int axis : AxesInUse()) {
    if (ReadAxisMaxPulse(axis, read[axis]) != 0) return 1;
  }
  pulses = read;
  return 0;
}

int WriteAxisPatternToCt(int mask, TusinSent* sent) {
  std::string reply;
  if (ReadParaBlock('0', kBlockTimeoutMs, reply) != 0) return 1;
  const std::string data = std::string(ReplyField(reply, 5, 2)) + HexPad(mask, 2) +
                           std::string(ReplyField(reply, 9, 28));
  if (WriteBlock0(data, sent) != 0) return 1;
  AppState.AxisPattern = static_cast<std::int16_t>(mask);
  return 0;
}

int ChangeCtModeToCt(int mode) {
  std::string reply;
  if (ReadBlock0(reply) != 0) return 1;
  const std::string block(ReplyField(reply, 5, 32));
  const std::string data = block.substr(0, 18) + DecPad(mode, 2) + block.substr(20, 12);
  if (WriteBlock0(data) != 0) return 1;
  std::string committed;
  if (TusinCommand("0WE", 5, kBlockTimeoutMs, committed) != 0) return 1;
  if ((ReplyValue(reply, 23, 2) == 1) != (mode == 1)) {
    MsgBox(Text(495) + "\n\n" + Text(496), MsgButtons::Ok, MsgIcon::Information);
  }
  return 0;
}

}  // namespace tr7
