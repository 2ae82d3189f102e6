#include "para/take_param_device.h"

#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "para/param_set.h"
#include "state/axes_in_use.h"

namespace tr7 {
namespace {

enum class PgSource { DeviceBlock, Function };

void TakeAxis(int axis, PgSource source) {
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
  const int pg = source == PgSource::DeviceBlock ? CtDev[axis].PgCode : ParamSet.PgFunction[axis];
  device.SeriesOk = type == 0 || type == 1;
  pending.Vertical = type == 0 || type == 1;
  pending.WithPG = pg != 0;
  device.Vertical = pending.Vertical;
  device.WithPG = pending.WithPG;
}

void Take(PgSource source) {
  for (int axis = 0; axis < kAxes; ++axis) {
    AppState.AxisMuko[axis] = (ParamSet.OneAxis >> axis & 1) == 0;
  }
  for (const int axis : AxesInUse()) {
    if (ParamSet.Actuator[axis].empty()) {
      DevSetting[axis].NotChosen = True;
      return;
    }
    TakeAxis(axis, source);
  }
  CalcStrokeMm();
}

}  // namespace

void TakeDevFromParam() { Take(PgSource::DeviceBlock); }
void TakeDevFromParam2() { Take(PgSource::Function); }

}  // namespace tr7
