#include "device/take_ct_device.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "state/axes_in_use.h"
#include "steps/record_frames.h"

namespace tr7 {
namespace {

/// Sizes whose type 1 devices are of the new type.
bool IsNewTypeSize(const std::string& size) {
  return size == "E35" || size == " 20" || size == " 42";
}

void TakeType(int type, DevSettingRecord& device, DevSettingRecord& pending) {
  const bool known = type >= 0 && type <= 2;
  device.NewType = type == 0 || type == 2 || (type == 1 && IsNewTypeSize(device.Size));
  device.SeriesOk = known;
  device.Vertical = known;
  pending.NewType = device.NewType;
  pending.Vertical = known;
}

}  // namespace

bool DevicesOfCtCanBeTaken() {
  constexpr int kMaxStroke = std::numeric_limits<std::int16_t>::max();
  const auto axes = AxesInUse();
  const bool can = std::all_of(axes.begin(), axes.end(),
                               [](int axis) { return CtDev[axis].Stroke <= kMaxStroke; });
  if (!can) static_cast<void>(TellBadData());
  return can;
}

void TakeDevFromCt() {
  for (const int axis : AxesInUse()) {
    const CtDeviceRecord& ct = CtDev[axis];
    DevSettingRecord& device = DevSetting[axis];
    DevSettingRecord& pending = DevSettei[axis];
    device.Size = pending.Size = ct.Size;
    device.Speed = pending.Speed = ct.Speed;
    device.Stroke = pending.Stroke = static_cast<std::int16_t>(ct.Stroke);
    device.Lead = static_cast<std::int16_t>(ct.Lead);
    device.Ppr = ct.Ppr;
    CalcMmPerPulse(device);
    device.WithPG = pending.WithPG = ct.PgCode != 0;
    device.NotChosen = False;
    TakeType(ct.Type, device, pending);
    device.NewTypeWord = device.NewType ? "NEW" : "OLD";
    AppState.StrokePulse[axis] = ct.MaxPulse;
  }
  CalcStrokeMm();
}

}  // namespace tr7
