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

namespace tr7 {
namespace {

void TakeNewType() {
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    if (AppState.AxisMuko[axis]) continue;
    DevSetting[axis].NewType = DevSettei[axis].NewType;
    DevSetting[axis].NewTypeWord = DevSetting[axis].NewType ? "NEW" : "OLD";
  }
}

}  // namespace

int TakeDeviceFieldsOfParam() {
  // What a controller reported earlier says nothing of devices chosen here, so type and PG come
  // from the choice.
  CtDev.fill(CtDeviceRecord{});
  TakeDevFromParam2();
  ParaFlags.ShownAxisCount = 0;
  if (!EveryAxisHasADevice()) return 1;
  TakeNewType();
  return 0;
}

int TakeDevicesOfParam() {
  const auto devices = DevSetting;
  const auto strokes = AppState.StrokePulse;
  if (TakeDeviceFieldsOfParam() != 0) {
    DevSetting = devices;
    AppState.StrokePulse = strokes;
    return 1;
  }
  SaveDevSetting();
  RecalcLimits();
  Followers.PositionsFollowDevices();
  if (frmParameta2.Loaded) ParametaHyoji();
  return 0;
}

}  // namespace tr7
