#include "device/dev_setting_store.h"

#include <tuple>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/device_list.h"
#include "state/settings.h"

namespace tr7 {
namespace {

constexpr int kMinStroke = 10, kMaxStroke = 600;
constexpr int kMinLead = 2, kMaxLead = 20;

/// Keys end in the axis number 1 to 4.
std::string Key(const char* name, int axis) { return name + std::to_string(axis + 1); }

bool IsOne(const char* name, int axis, int fallback) {
  return GetSettingInt16(Key(name, axis), fallback) == 1;
}

void SetNewType(DevSettingRecord& device, bool new_type) {
  device.NewType = new_type;
  device.NewTypeWord = new_type ? "NEW" : "OLD";
}

void LoadNewType(int axis) {
  const bool new_type = IsOne("NewType", axis, 1);
  SetNewType(DevSetting[axis], new_type);
  DevSettei[axis].NewType = new_type;
  if (new_type) DevSetting[axis].Vertical = True;
}

void LoadName(int axis) {
  DevSettingRecord& device = DevSetting[axis];
  const std::string size = GetSetting(Key("DevSize", axis), " 28");
  const std::string speed = GetSetting(Key("DevSpeed", axis), "L");
  const std::int16_t stroke = GetSettingInt16(Key("DevStroke", axis), 100);
  device.NotChosen = CheckDeviceFormat(size, speed, stroke) != 0;
  if (device.NotChosen) return;
  device.Size = DevSettei[axis].Size = size;
  device.Speed = DevSettei[axis].Speed = speed;
  device.Stroke = DevSettei[axis].Stroke = stroke;
}

void LoadStoredLead(int axis) {
  const std::int16_t lead = GetSettingInt16(Key("DevLead", axis), 2);
  if (lead < kMinLead || lead > kMaxLead) {
    DevSetting[axis].NotChosen = True;
  } else {
    DevSetting[axis].Lead = lead;
  }
}

/// The new list wins, whatever the type of the device: one of the old list keeps the stored PPR.
void LoadLead(int axis) {
  DevSettingRecord& device = DevSetting[axis];
  // A list that one axis could not read is not asked for again.
  const bool list_gone = axis > 0 && DeviceLookup.ListMissing;
  if (list_gone || FindDeviceNew(device.Size, device.Speed, device.Stroke) != 0) {
    LoadStoredLead(axis);
    return;
  }
  device.NotChosen = GetLeadAndPprNew(device.Size, device.Speed, device.Stroke) != 0;
  if (device.NotChosen) return;
  device.Lead = DeviceLookup.Lead;
  device.Ppr = DeviceLookup.Ppr;
}

/// False without a PPR, which no conversion can do without.
bool WorkOutScale(DevSettingRecord& device) {
  CalcMmPerPulse(device);
  if (device.Ppr <= 0) device.NotChosen = True;
  return !device.NotChosen;
}

/// What makes one device differ from another for the position table.
auto SixFields(DevSettingRecord& device) {
  return std::tie(device.NewType, device.Size, device.Speed, device.Stroke, device.WithPG,
                  device.Vertical);
}

template <typename Step>
void ForAllAxes(Step step) {
  for (int axis = 0; axis < kAxes; ++axis) step(axis);
}

}  // namespace

int LoadDevSetting() {
  ForAllAxes(LoadNewType);
  ForAllAxes([](int axis) { DevSetting[axis].Ppr = GetSettingInt16(Key("DevPPR", axis), 400); });
  ForAllAxes(
      [](int axis) { DevSetting[axis].SeriesOk = GetSetting(Key("Device", axis), "QV") == "QV"; });
  ForAllAxes(LoadName);
  ForAllAxes(LoadLead);
  ForAllAxes([](int axis) {
    DevSetting[axis].Vertical = IsOne("Vertical", axis, 1);
    DevSetting[axis].WithPG = IsOne("WithPG", axis, 0);
  });
  int result = 0;
  ForAllAxes([&result](int axis) {
    if (!WorkOutScale(DevSetting[axis])) result = 1;
  });
  return result;
}

void SaveDevSetting() {
  ForAllAxes([](int axis) {
    if (AppState.AxisMuko[axis]) return;
    const DevSettingRecord& device = DevSetting[axis];
    PutSetting(Key("DevSize", axis), device.Size);
    PutSetting(Key("DevSpeed", axis), device.Speed);
    PutSetting(Key("DevStroke", axis), device.Stroke);
    PutSetting(Key("DevLead", axis), device.Lead);
    PutSetting(Key("NewType", axis), device.NewType ? 1 : 0);
    PutSetting(Key("Device", axis), std::string("QV"));
    PutSetting(Key("Vertical", axis), DevSettei[axis].Vertical ? 1 : 0);
    PutSetting(Key("WithPG", axis), DevSettei[axis].WithPG ? 1 : 0);
  });
}

int CheckDeviceFormat(const std::string& size, const std::string& speed, double stroke) {
  const bool valid = CharCount(size) == 3 && speed.size() == 1 && speed[0] >= 'A' &&
                     speed[0] <= 'Z' && stroke >= kMinStroke && stroke <= kMaxStroke;
  return valid ? 0 : 1;
}

void LetDevSettingToDevSettei() {
  ForAllAxes([](int axis) {
    if (!AppState.AxisMuko[axis]) SixFields(DevSettei[axis]) = SixFields(DevSetting[axis]);
  });
}

void ReflectFileDevice2PcDevice() {
  AppState.AxisMuko = AppState.AxisMukoOfFile;
  ForAllAxes([](int axis) {
    if (AppState.AxisMuko[axis]) return;
    SixFields(DevSetting[axis]) = SixFields(DevSettei[axis]);
    SetNewType(DevSetting[axis], DevSetting[axis].NewType);
  });
}

int CompareActuatorSettingOfPosifile2PC() {
  int result = 0;
  ForAllAxes([&result](int axis) {
    if (AppState.AxisMukoOfFile[axis]) return;
    if (SixFields(DevSetting[axis]) != SixFields(DevSettei[axis])) result = 1;
  });
  return result;
}

}  // namespace tr7
