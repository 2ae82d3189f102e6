#include "device/device_list.h"

#include <optional>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/device_list_file.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "state/file_kind.h"
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

int TellNoList(const std::string& reason = {}) {
  MsgBox(WithReason(TwoLines(kMsgNoList, kMsgPutList), reason));
  return 1;
}

/// The list is read again and again; what is wrong with it is told again only when it has changed.
void TellLeftOut(DeviceListKind kind, const std::string& rows) {
  std::string& told = DeviceLookup.LeftOutTold[kind == DeviceListKind::Old ? 0 : 1];
  if (rows == told) return;
  told = rows;
  if (!rows.empty()) MsgBox(rows);
}

int ReadList(int axis, DeviceListKind kind) {
  const DeviceListReport report = ReadDeviceListFile(kind, DeviceList[axis]);
  DevListMissing[axis] = !report.Read;
  if (!report.Read) return TellNoList(report.Fault);
  TellLeftOut(kind, report.LeftOut);
  return 0;
}

/// The device's row of the new list, read afresh; none where that holds no such device or cannot be
/// read, which `trouble` tells to the user.
template <typename Tell>
std::optional<DeviceRecord> LookUpNew(const std::string& size, const std::string& speed, int stroke,
                                      Tell trouble) {
  DeviceListRecord table;
  const DeviceListReport report = ReadDeviceListFile(DeviceListKind::New, table);
  DeviceLookup.ListMissing = !report.Read;
  if (!report.Read) {
    trouble(report.Fault);
    return std::nullopt;
  }
  TellLeftOut(DeviceListKind::New, report.LeftOut);
  const int slot = table.Find(size, speed, stroke);
  if (slot == 0) return std::nullopt;
  return table.Rows[slot];
}

/// The same, with a missing list told in short.
std::optional<DeviceRecord> LookUpInShort(const std::string& size, const std::string& speed,
                                          int stroke) {
  return LookUpNew(size, speed, stroke,
                   [](const std::string& reason) { MsgBox(WithReason(Text(kMsgNoList), reason)); });
}

int KindOf(std::int16_t DeviceRecord::*kind, const std::string& size, const std::string& speed,
           int stroke) {
  const auto row = LookUpInShort(size, speed, stroke);
  return row ? (*row).*kind : kKindUnknown;
}

/// False when the axis's list lacks its device.
bool SetLeadOfAxis(int axis) {
  DevSettingRecord& device = DevSetting[axis];
  const DeviceListRecord& list = DeviceList[axis];
  const int slot = list.Find(device.Size, device.Speed, device.Stroke);
  if (slot == 0) return false;
  device.Lead = list.Rows[slot].Lead;
  CalcMmPerPulse(device);
  return true;
}

/// The position view rests while the leads change under it.
bool SetLeads() {
  const bool enabled = frmPosi.flgdData.Enabled;
  frmPosi.flgdData.Enabled = false;
  bool found = true;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis] && !SetLeadOfAxis(axis)) found = false;
  }
  frmPosi.flgdData.Enabled = enabled;
  return found;
}

}  // namespace

int ReadDeviceListOldAxis(int axis) {
  if (DevSetting[axis].Series == "QV") return ReadList(axis, DeviceListKind::Old);
  DeviceList[axis] = DeviceListRecord{};
  DevListMissing[axis] = True;
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
  DeviceListRecord& list = DeviceList[axis];
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
  return LookUpInShort(size, speed, stroke) ? 0 : 1;
}

int GetLeadAndPprNew(const std::string& size, const std::string& speed, int stroke) {
  const auto row = LookUpNew(size, speed, stroke, [](const auto& reason) { TellNoList(reason); });
  if (!row) return 1;
  DeviceLookup.Lead = row->Lead;
  DeviceLookup.Ppr = row->Ppr;
  return 0;
}

int GetPgKindNew(const std::string& size, const std::string& speed, int stroke) {
  return KindOf(&DeviceRecord::PgKind, size, speed, stroke);
}

int GetVKindNew(const std::string& size, const std::string& speed, int stroke) {
  return KindOf(&DeviceRecord::VKind, size, speed, stroke);
}

}  // namespace tr7
