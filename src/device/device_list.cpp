#include "device/device_list.h"

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/device_list_file.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {

AxisArray<DeviceListRecord> DeviceList;
AxisArray<Bool16> DevListMissing;
DeviceLookupRecord DeviceLookup;

namespace {

constexpr int kMsgNoList = 15;
constexpr int kMsgPutList = 16;
constexpr int kMsgNoDevice = 17;

int TellNoList() {
  MsgBox(TwoLines(kMsgNoList, kMsgPutList));
  return 1;
}

int ReadList(int axis, DeviceListKind kind) {
  const auto a = static_cast<std::size_t>(axis);
  const bool read = ReadDeviceListFile(kind, DeviceList[a]);
  DevListMissing[a] = !read;
  return read ? 0 : TellNoList();
}

/// Reads the new list into `table`; the slot of the device, 0 when it has none, -1 without a list.
int LookUpNew(DeviceListRecord& table, const std::string& size, const std::string& speed,
              int stroke) {
  DeviceLookup.ListMissing = !ReadDeviceListFile(DeviceListKind::New, table);
  return DeviceLookup.ListMissing ? -1 : table.Find(size, speed, stroke);
}

int KindOf(std::int16_t DeviceRecord::*kind, const std::string& size, const std::string& speed,
           int stroke) {
  DeviceListRecord table;
  const int slot = LookUpNew(table, size, speed, stroke);
  if (slot < 0) MsgBox(Text(kMsgNoList));
  return slot > 0 ? table.Rows[static_cast<std::size_t>(slot)].*kind : kKindUnknown;
}

/// False when the axis's list lacks its device.
bool SetLeadOfAxis(std::size_t axis) {
  DevSettingRecord& device = DevSetting[axis];
  const DeviceListRecord& list = DeviceList[axis];
  const int slot = list.Find(device.Size, device.Speed, device.Stroke);
  if (slot == 0) return false;
  device.Lead = list.Rows[static_cast<std::size_t>(slot)].Lead;
  CalcMmPerPulse(device);
  return true;
}

/// The position view rests while the leads change under it.
bool SetLeads() {
  const bool enabled = frmPosi.flgdData.Enabled;
  frmPosi.flgdData.Enabled = false;
  bool found = true;
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis] && !SetLeadOfAxis(axis)) found = false;
  }
  frmPosi.flgdData.Enabled = enabled;
  return found;
}

}  // namespace

int ReadDeviceListOldAxis(int axis) {
  const auto a = static_cast<std::size_t>(axis);
  if (DevSetting[a].Series == "QV") return ReadList(axis, DeviceListKind::Old);
  DeviceList[a] = DeviceListRecord{};
  DevListMissing[a] = True;
  return TellNoList();
}

int ReadDeviceListOld() {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (ReadDeviceListOldAxis(axis) != 0) return 1;
  }
  return 0;
}

int ReadDeviceListNewAxis(int axis) { return ReadList(axis, DeviceListKind::New); }

int ReadDeviceListNew() {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (ReadDeviceListNewAxis(axis) != 0) return 1;
  }
  return 0;
}

void MakeSpeedListNew(int axis, const std::string& size) {
  DeviceListRecord& list = DeviceList[static_cast<std::size_t>(axis)];
  SpeedsOfSize(list, size, list.Speeds);
}

void SetLeadFromOldList() {
  if (!SetLeads()) {
    MsgBox(Text(kMsgNoDevice));
    return;
  }
  CalcStrokeMm();
}

int FindDeviceNew(const std::string& size, const std::string& speed, int stroke) {
  DeviceListRecord table;
  const int slot = LookUpNew(table, size, speed, stroke);
  if (slot < 0) MsgBox(Text(kMsgNoList));
  return slot > 0 ? 0 : 1;
}

int GetLeadAndPprNew(const std::string& size, const std::string& speed, int stroke) {
  DeviceListRecord table;
  const int slot = LookUpNew(table, size, speed, stroke);
  if (slot < 0) return TellNoList();
  if (slot == 0) return 1;
  DeviceLookup.Lead = table.Rows[static_cast<std::size_t>(slot)].Lead;
  DeviceLookup.Ppr = table.Rows[static_cast<std::size_t>(slot)].Ppr;
  return 0;
}

int GetPgKindNew(const std::string& size, const std::string& speed, int stroke) {
  return KindOf(&DeviceRecord::PgKind, size, speed, stroke);
}

int GetVKindNew(const std::string& size, const std::string& speed, int stroke) {
  return KindOf(&DeviceRecord::VKind, size, speed, stroke);
}

}  // namespace tr7
