#pragma once

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/text_helpers.h"
#include "data/grp_commands.h"
#include "data/grp_table.h"
#include "data/sm_commands.h"
#include "data/sm_table.h"
#include "device/ct_device.h"
#include "forms/frm_main.h"
#include "forms/timer.h"
#include "link/error_list.h"
#include "link/motion_commands.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "link/status_commands.h"
#include "para/para_blocks.h"
#include "para/para_transfer_commands.h"
#include "para/param_set.h"
#include "para/sys_para.h"
#include "para/sys_para_commands.h"
#include "platform/doors.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/posi_wire.h"
#include "state/app_state.h"
#include "state/online.h"
#include "tests/fuzz/bytes_port.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

// Decoders by themselves.

/// Any bytes as the reply to a read of a position: refused whole, or the record that a write of
/// the same digits makes.
inline void FuzzPosiReply(std::string_view bytes) {
  const std::string reply(bytes);
  const std::int64_t named = bytes.size() < 6 ? 1 : HexValue(bytes.substr(3, 3));
  const int number = static_cast<int>(std::clamp<std::int64_t>(named, 1, kPosiMaxNo));
  const auto index = static_cast<std::size_t>(number);
  for (std::size_t col = 1; col <= kSm; ++col) PosiTable.PosiStage[col][index] = -1.0;
  const bool good = DecodePosiRecord(reply, number);
  FuzzCheck(!good || named == number, "a record is of the number asked for");
  for (std::size_t col = 1; col <= kSm; ++col) {
    const double value = ValueOf(PosiTable.PosiStage[col][index]);
    FuzzCheck(good ? value >= 0 && value <= kMostPulses : value == -1, "a record comes whole");
    PosiTable.PosiRec[col][index] = PosiTable.PosiStage[col][index];
  }
  if (!good) return;
  std::string digits = reply.substr(3, reply.size() - 5);
  for (char& c : digits) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  FuzzCheck(EncodePosiRecord(number) == "0WP" + digits, "the same digits go back");
}

/// True when the text of the device is that of its parts.
inline bool HasPlainDevice(std::size_t axis) {
  return ParamSet.Actuator[axis] ==
         JoinActuator(ParamSet.ActSize[axis], ParamSet.ActSpeed[axis], ParamSet.ActStroke[axis]);
}

/// Any bytes as the parameter blocks: refused whole, or a table that `ParamSet` can take.
inline void FuzzParaBlocks(std::string_view bytes) {
  if (bytes.empty()) return;
  const AxisList axes(bytes[0]);
  ParaBlocks blocks;
  std::size_t at = 1;
  for (const int block : ParaBlocksFor(axes)) {
    std::string data(bytes.substr(std::min(at, bytes.size()), kParaBlockLength));
    at += data.size();
    data.resize(kParaBlockLength, '0');
    blocks[static_cast<std::size_t>(block)] = data;
  }
  ParaTable.Clear();
  const ParaTableRecord empty = ParaTable;
  if (!DecodePara(blocks, axes, ParaTable)) {
    FuzzCheck(ParaTable == empty, "damaged blocks change nothing");
    return;
  }
  FuzzCheck(TakeParamTable() == 0, "a decoded table fits the parameters");
  ParaTableRecord read = ParaTable;
  ParaBlocks sent = blocks;
  if (EncodePara(ParamSet, axes, sent)) return;
  for (std::size_t block = 0; block < blocks.size(); ++block) {
    FuzzCheck(sent[block].size() == blocks[block].size(), "a block keeps its length");
  }
  FuzzCheck(DecodePara(sent, axes, ParaTable), "what is sent back can be read");
  // A device that is none, as of an axis never set up, has no parts that make its text.
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    if (!HasPlainDevice(axis)) read[axis][kRowActuator] = ParaTable[axis][kRowActuator];
  }
  FuzzCheck(ParaTable == read, "what is sent back is equal");
}

// Commands, with any bytes as the replies.

inline constexpr std::size_t kFuzzCommands = 21;
inline constexpr std::size_t kReadThenWrite =
    16;  ///< its read stays, whatever becomes of the write

/// Runs one of the commands. Its result.
inline int RunCommand(std::size_t which) {
  int next = 0;
  AxisArray<std::int32_t> pulses{};
  switch (which) {
    case 0:
      return GetVersionNo() == 0 ? GetAxisVersionNo(kAxes) : 1;
    case 1:
      return std::min(GetVersionNoAxis(), 1);
    case 2:
      return ReadAlarmFromCt();
    case 3:
      return ReadHomeStateFromCt();
    case 4:
      return AlarmResetToCt();
    case 5:
      return CtControlModeSet(1, 0, 15);
    case 6:
      return ReadCtAxisFromCt();
    case 7:
      return CompareCtModeAndAxis();
    case 8:
      return ReadCtDeviceFromCt();
    case 9:
      return CompareCtDevice();
    case 10:
      return WriteAxisPatternToCt(7);
    case 11:
      return ChangeCtModeToCt(1);
    case 12:
      return ReadPresentPosFromCt(pulses);
    case 13:
      return static_cast<int>(ReadPosidataFromCt({1, 2}));
    case 14:
      return static_cast<int>(WritePosidataToCt({1, 2}, next));
    case 15:
      return static_cast<int>(ReadParaFromCt());
    case kReadThenWrite:
      if (ReadParaFromCt() != Outcome::Done || TakeParamTable() != 0) return 1;
      return static_cast<int>(WriteParaToCt());
    case 17:
      return static_cast<int>(WriteAxisSettingToCt());
    case 18:
      return static_cast<int>(ReadGrpFromCt());
    case 19:
      return static_cast<int>(ReadSmFromCt());
    case 20:
      return static_cast<int>(ReadSysParaFromCt());
    default:
      return 0;
  }
}

/// What bulk reads fill: whole or not at all.
struct ReadStages {
  ParaTableRecord para = ParaTable;
  GrpTableRecord groups = GrpStage;
  SmTableRecord macros = SmStage;
  SysParaRecord tuning = SysParaRead;
  bool operator==(const ReadStages&) const = default;
};

/// What a command leaves behind, however it ended.
inline void CheckAfterCommand(int result) {
  FuzzCheck(result >= -1 && result <= 3, "a command ends as told");
  FuzzCheck(!frmMain.timerTimeout.Enabled, "no time-out is left running");
  FuzzCheck(TusinQueue.IsEmpty(), "no request waits");
  FuzzCheck(!frmMain.ProgressBar1.Visible, "no progress is shown");
  FuzzCheck(AppState.AxisPattern >= 0 && AppState.AxisPattern <= 255, "axes are a mask");
  for (const CtDeviceRecord& device : CtDev) {
    FuzzCheck(device.Stroke >= 0 && device.Lead >= 0 && device.Ppr >= 0, "a device has no signs");
  }
}

/// The state of the line as at the start, without the views, which take long.
inline void ResetLine() {
  AppState = AppStateRecord{};
  TusinQueue = RequestQueue{};
  ErrorList = ErrorListRecord{};
  ParamSet = ParamSetRecord{};
  ParaTable.Clear();
  CtDev.fill(CtDeviceRecord{});
  AxisSettingSent = AxisSettingSentRecord{};
  for (Timer* timer : TimerTable()) timer->DueUs = Timer::kNotArmed;
}

/// Any bytes as replies to one command, which the first of them chooses.
inline void FuzzReplies(std::string_view bytes) {
  if (bytes.empty()) return;
  BytesPort port(bytes.substr(1));
  FuzzDoors virt;
  virt.pump.SetLimit(std::int64_t{3600} * 1'000'000);
  doors.serial = &port;

  AppState.PortNo = 1;
  SetOnline();
  const ReadStages stages;
  const std::size_t which = static_cast<unsigned char>(bytes[0]) % kFuzzCommands;
  const int result = RunCommand(which);
  CheckAfterCommand(result);
  const bool untouched = ReadStages() == stages;
  FuzzCheck(result == 0 || which == kReadThenWrite || untouched, "a failed read leaves nothing");
  TusinPortCloseForce();
}

/// Any bytes as what comes over the line. The views stand as `ResetState` leaves them.
inline void FuzzWire(std::string_view bytes) {
  ResetLine();
  FuzzPosiReply(bytes);
  FuzzParaBlocks(bytes);
  ResetLine();
  FuzzReplies(bytes);
  ResetLine();
}

}  // namespace tr7
