#include "para/device_take.h"

#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/dev_setting_store.h"
#include "device/limits.h"
#include "forms/frm_parameta2.h"
#include "para/para_show.h"
#include "para/param_set.h"
#include "para/take_param_device.h"
#include "session/followers.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"

namespace tr7 {
namespace {

void TakeNewType() {
  for (const int axis : AxesInUse()) {
    DevSetting[axis].NewType = DevSettei[axis].NewType;
    DevSetting[axis].NewTypeWord = DevSetting[axis].NewType ? "NEW" : "OLD";
  }
}

}  // namespace

bool TakeDeviceFieldsOfParam() {
  // What a controller reported earlier says nothing of devices chosen here, nor of those that a
  // write has just put in their place: type and PG come from the parameters' side.
  CtDev.fill(CtDeviceRecord{});
  TakeDevFromParam2();
  ParaFlags.ShownAxisCount = 0;
  if (!EveryAxisHasADevice()) return false;
  TakeNewType();
  return true;
}

bool TakeDevicesOfParam() {
  const auto devices = DevSetting;
  const auto strokes = AppState.StrokePulse;
  if (!TakeDeviceFieldsOfParam()) {
    DevSetting = devices;
    AppState.StrokePulse = strokes;
    return false;
  }
  SaveDevSetting();
  RecalcLimits();
  Followers.PositionsFollowDevices();
  if (frmParameta2.Loaded) ParametaHyoji();
  return true;
}

}  // namespace tr7
