#pragma once

#include <algorithm>

#include "data/grp_commands.h"
#include "data/sm_commands.h"
#include "forms/frm_main.h"
#include "link/motion_commands.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "link/task_commands.h"
#include "para/sys_para.h"
#include "para/sys_para_commands.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "prog/prog_commands.h"
#include "state/online.h"
#include "tests/fuzz/bytes_port.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// A transfer as a command: 0 when it is done.
template <auto kTransfer>
int Transfer() {
  return static_cast<int>(kTransfer());
}

inline int ReadThenWrite() {
  return ReadParaFromCt() == Outcome::Done && TakeParamTable() == 0 ? Transfer<WriteParaToCt>() : 1;
}

inline constexpr int (*kFuzzCommands[])() = {
    [] { return GetVersionNo() == 0 ? GetAxisVersionNo(kAxes) : 1; },
    [] { return std::min(GetVersionNoAxis(), 1); },
    [] { return ReadAlarmFromCt(); },
    ReadTaskCountFromCt,
    ReadHomeStateFromCt,
    AlarmResetToCt,
    [] { return CtControlModeSet(1, 0, 15); },
    ReadCtAxisFromCt,
    CompareCtModeAndAxis,
    ReadCtDeviceFromCt,
    CompareCtDevice,
    [] { return WriteAxisPatternToCt(7); },
    [] { return ChangeCtModeToCt(1); },
    [] {
      AxisArray<std::int32_t> pulses{};
      return ReadPresentPosFromCt(pulses);
    },
    [] {
      return static_cast<int>(ReadPosidataFromCt({1, 2}));
    },
    [] {
      int next = 0;
      return static_cast<int>(WritePosidataToCt({1, 2}, next));
    },
    Transfer<ReadParaFromCt>,
    ReadThenWrite,
    Transfer<WriteAxisSettingToCt>,
    Transfer<ReadGrpFromCt>,
    Transfer<ReadSmFromCt>,
    Transfer<ReadSysParaFromCt>,
    [] {
      std::vector<ProgStep> steps;
      const Outcome read = ReadProgDataFromCt(5, steps);
      FuzzCheck(read == Outcome::Done || steps.empty(), "a failed read brings no steps");
      const bool fits = read == Outcome::Done && steps.size() <= kMostProgSteps;
      return fits && WriteProgdataToCt(5, steps) == ProgWrite::Done ? 0 : 1;
    }};

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

/// Any bytes as replies to one command, which the first of them chooses.
inline void FuzzWire(std::string_view bytes) {
  if (bytes.empty()) return;
  FuzzDoors virt;
  BytesPort port(bytes.substr(1));
  virt.pump.SetLimit(std::int64_t{3600} * 1'000'000);
  doors.serial = &port;

  AppState.PortNo = 1;
  SetOnline();
  const ReadStages stages;
  const auto command =
      kFuzzCommands[static_cast<unsigned char>(bytes[0]) % std::size(kFuzzCommands)];
  const int result = command();
  CheckAfterCommand(result);
  const bool untouched = ReadStages() == stages;
  // The read in front of a write stays, whatever becomes of that.
  FuzzCheck(result == 0 || command == ReadThenWrite || untouched, "a failed read leaves nothing");
  TusinPortCloseForce();
}

}  // namespace tr7
