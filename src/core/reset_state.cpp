#include "core/reset_state.h"

#include "core/install_views.h"
#include "core/keep_work.h"
#include "core/window_state.h"
#include "data/grp_table.h"
#include "data/sm_table.h"
#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/device_cascade.h"
#include "device/device_list.h"
#include "forms/view.h"
#include "link/error_list.h"
#include "link/frame_log.h"
#include "link/motion_commands.h"
#include "link/request_queue.h"
#include "link/tusin_wait.h"
#include "monitor/io_state.h"
#include "monitor/poll.h"
#include "monitor/task_monitor.h"
#include "motion/motion_view.h"
#include "para/para_transfer_commands.h"
#include "para/param_set.h"
#include "para/std_table.h"
#include "para/sys_para.h"
#include "posi/posi_edits.h"
#include "posi/posi_table.h"
#include "prog/command_list.h"
#include "prog/prog_clip.h"
#include "prog/prog_store.h"
#include "session/followers.h"
#include "state/app_state.h"
#include "state/files_here.h"
#include "state/views.h"
#include "steps/write_taken.h"
#include "wire/wire_rows.h"

namespace tr7 {
void ResetState() {
  ResetMotion();
  ResetViews();
  Followers = FollowersRecord{};
  FailureFollowers = FailureFollowersRecord{};
  AppState = AppStateRecord{};
  TusinQueue = RequestQueue{};
  FilesHere = FilesHereRecord{};
  FrameLog = FrameLogRecord{};
  PollLine = PollLineRecord{};
  ResetIoMonitor();
  TaskMonitor = TaskMonitorRecord{};
  WireRows = WireRowsRecord{};
  WriteTaken = WriteTakenRecord{};
  ResetMotionCommands();
  ErrorList = ErrorListRecord{};
  CtDev.fill(CtDeviceRecord{});
  AxisSettingSent = AxisSettingSentRecord{};
  ParaOfCt = ParaOfCtRecord{};
  DevSetting.fill(DevSettingRecord{});
  DevSettei.fill(DevSettingRecord{});
  FileDevice.fill({});
  DeviceList.fill(DeviceListRecord{});
  DevListMissing.fill(False);
  DeviceLookup = DeviceLookupRecord{};
  DeviceDialog = DeviceDialogRecord{};
  ParamSet = ParamSetRecord{};
  ParaTable = ParaTableRecord{};
  ParaFlags = ParaFlagsRecord{};
  StdTable.fill(StdList{});
  CommonTable = CommonTableRecord{};
  SysPara = SysParaRead = SysParaRecord{};
  SysParaKnown = False;
  GrpTable = GrpStage = GrpSaved = GrpTableRecord{};
  GrpFlags = GrpFlagsRecord{};
  SmTable = SmStage = SmSaved = SmTableRecord{};
  SmFlags = SmFlagsRecord{};
  PosiTable = PosiTableRecord{};
  PosiUndo = PosiUndoRecord{};
  CommandList = CommandListRecord{};
  ProgCt = ProgCtRecord{};
  ProgLineClip = ProgLineClipRecord{};
  KeepState = KeepRecord{};
  WindowState = WindowStateRecord{};
  RenewViews();
  InstallViews();
}

}  // namespace tr7
