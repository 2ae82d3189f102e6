#include "device/dev_setting.h"

namespace tr7 {

AxisArray<DevSettingRecord> DevSetting;
AxisArray<DevSettingRecord> DevSettei;
AxisArray<std::string> FileDevice;

void CalcMmPerPulse(DevSettingRecord& device) {
  device.MmPerPulse = device.Ppr == 0 ? 0 : static_cast<double>(device.Lead) / device.Ppr;
}

bool EveryAxisHasADevice() {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis] && DevSetting[axis].NotChosen) return false;
  }
  return true;
}

}  // namespace tr7
