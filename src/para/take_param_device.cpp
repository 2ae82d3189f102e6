#include "para/take_param_device.h"

#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "para/param_set.h"
#include "state/axes_in_use.h"

namespace tr7 {
namespace {

void TakeAxis(int axis) {
  DevSettingRecord& device = DevSetting[axis];
  DevSettingRecord& pending = DevSettei[axis];
  device.Size = ParamSet.ActSize[axis];
  device.Speed = ParamSet.ActSpeed[axis];
  device.Stroke = ParamSet.ActStroke[axis];
  device.Lead = ParamSet.AxisLead[axis];
  device.Ppr = ParamSet.AxisPulse[axis];
  CalcMmPerPulse(device);
  device.NotChosen = False;
  AppState.StrokePulse[axis] = ParamSet.AxisStroke[axis];

  const int type = CtDev[axis].Type;
  device.SeriesOk = type == 0 || type == 1;
  pending.Vertical = type == 0 || type == 1;
  pending.WithPG = ParamSet.PgFunction[axis] != 0;
  device.Vertical = pending.Vertical;
  device.WithPG = pending.WithPG;
}

}  // namespace

void TakeDevFromParam2() {
  AppState.AxisMuko = MukoOfMask(ParamSet.OneAxis);
  for (const int axis : AxesInUse()) {
    if (ParamSet.Actuator[axis].empty()) {
      DevSetting[axis].NotChosen = True;
      return;
    }
    TakeAxis(axis);
  }
  CalcStrokeMm();
}

}  // namespace tr7
