#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "data/grp_table.h"
#include "data/sm_table.h"
#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/device_list.h"
#include "forms/timer.h"
#include "link/error_list.h"
#include "link/frame_log.h"
#include "link/request_queue.h"
#include "para/para_transfer_commands.h"
#include "para/param_set.h"
#include "para/std_table.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/text_file.h"
#include "tests/support/memory_files.h"
#include "tests/support/virtual_form_host.h"
#include "tests/support/virtual_pump.h"
#include "tests/support/virtual_settings.h"

namespace tr7 {

/// Stops the run when what must hold for every input does not.
inline void FuzzCheck(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

/// The doors of one run: no file but what it puts there, nobody who answers. At its end those of
/// before come back, and what readers fill is as at the start, without the views, which take long.
struct FuzzDoors {
  FuzzDoors() {
    doors.files = &files;
    doors.forms = &forms;
    doors.settings = &settings;
    doors.pump = &pump;
  }
  ~FuzzDoors() {
    doors = before;
    AppState = AppStateRecord{};
    TusinQueue = RequestQueue{};
    FrameLog.Clear();
    ErrorList = ErrorListRecord{};
    DeviceList.fill(DeviceListRecord{});
    DevListMissing.fill(False);
    DeviceLookup = DeviceLookupRecord{};
    StdTable.fill(StdList{});
    CommonTable = CommonTableRecord{};
    ParamSet = ParamSetRecord{};
    ParaTable.Clear();
    ParaFlags = ParaFlagsRecord{};
    DevSettei.fill(DevSettingRecord{});
    FileDevice.fill({});
    CtDev.fill(CtDeviceRecord{});
    AxisSettingSent = AxisSettingSentRecord{};
    GrpTable = GrpStage = GrpTableRecord{};
    SmTable = SmStage = SmTableRecord{};
    GrpFlags = GrpFlagsRecord{};
    SmFlags = SmFlagsRecord{};
    for (Timer* timer : TimerTable()) timer->DueUs = Timer::kNotArmed;
  }
  FuzzDoors(const FuzzDoors&) = delete;
  FuzzDoors& operator=(const FuzzDoors&) = delete;

  /// The bytes as a list that the program brings along.
  void PutList(const char* name, std::string_view bytes) {
    files.Put(ProgramFile(name), std::string(bytes));
  }

  const Doors before = doors;
  MemoryFiles files;
  VirtualFormHost forms;
  VirtualSettings settings;
  VirtualPump pump;
};

/// What was read, saved at the path: read and saved again it is the same bytes. Both return 0 when
/// they went well; a save may refuse.
inline void CheckRoundTrip(const MemoryFiles& files, const std::string& path,
                           const std::function<int()>& save, const std::function<int()>& read) {
  if (save() != 0) return;
  const auto saved = files.Content(path);
  // A number near the largest may round to more than a number holds.
  if (saved->find(std::string(280, '0')) != std::string::npos) return;
  FuzzCheck(read() == 0, "a saved file is good");
  FuzzCheck(save() == 0 && files.Content(path) == saved, "the bytes are the same");
}

}  // namespace tr7
