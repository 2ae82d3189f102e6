#include "core/reset_state.h"

#include <memory>

#include "core/install_views.h"
#include "data/grp_table.h"
#include "data/sm_table.h"
#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/device_cascade.h"
#include "device/device_list.h"
#include "forms/frm_device.h"
#include "forms/frm_main.h"
#include "forms/frm_options2.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_posi.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_selection.h"
#include "forms/frm_splash.h"
#include "forms/frm_stroke_calc.h"
#include "forms/frm_syogo_kekka.h"
#include "link/error_list.h"
#include "link/motion_commands.h"
#include "link/request_queue.h"
#include "para/para_transfer_commands.h"
#include "para/param_set.h"
#include "para/std_table.h"
#include "para/sys_para.h"
#include "posi/posi_table.h"
#include "session/followers.h"
#include "state/app_state.h"
#include "state/views.h"

namespace tr7 {
namespace {

/// Views hold pointers to their own controls, so they are built anew in place.
template <typename View, typename... Args>
void Renew(View& view, Args... args) {
  std::destroy_at(&view);
  std::construct_at(&view, args...);
}

}  // namespace

void ResetState() {
  ResetViews();
  Followers = FollowersRecord{};
  AppState = AppStateRecord{};
  TusinQueues = RequestQueues{};
  ResetMotionCommands();
  ErrorList = ErrorListRecord{};
  CtDev.fill(CtDeviceRecord{});
  AxisSettingSent = AxisSettingSentRecord{};
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
  GrpTable = GrpStage = GrpTableRecord{};
  SmTable = SmStage = SmTableRecord{};
  PosiTable = PosiTableRecord{};
  Renew(frmMain);
  Renew(frmSplash);
  Renew(frmPosi);
  Renew(frmSelection, "frmSelection");
  Renew(frmSelection2, "frmSelection2");
  Renew(frmOptions2);
  Renew(frmParameta2);
  Renew(frmStrokeCalc);
  Renew(frmDevice2, "frmDevice2", MsgId(6250), false);
  Renew(frmDevice3, "frmDevice3", MsgId(6251), true);
  Renew(frmSyogoKekka);
  Renew(frmSelectPosiNo2, "frmSelectPosiNo2", MsgId(5350));
  Renew(frmSelectPosiNo3, "frmSelectPosiNo3", MsgId(5355));
  Renew(frmSelectPosiNo4, "frmSelectPosiNo4", MsgId(5356));
  InstallViews();
}

}  // namespace tr7
