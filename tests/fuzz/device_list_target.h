#pragma once

#include <string>
#include <string_view>

#include "device/device_list.h"
#include "state/text_file.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// A list that was read, or what stands of one: every bound holds, every row can be walked.
inline void CheckDeviceList(const DeviceListRecord& list, bool good) {
  FuzzCheck(list.RowCount >= 0 && list.RowCount < kDeviceSlots, "rows have slots");
  FuzzCheck(list.Sizes.size() <= kDeviceListNames, "the sizes keep their bound");
  FuzzCheck(list.Speeds.size() <= kDeviceListNames, "the speeds keep their bound");
  FuzzCheck(good || list.Sizes.empty(), "a damaged list offers nothing");
  FuzzCheck(!good || std::stoi(list.Rows[0].Raw) >= list.RowCount, "no more rows than the count");
  for (int i = 1; i <= list.RowCount; ++i) {
    const DeviceRecord& row = list.Rows[static_cast<std::size_t>(i)];
    FuzzCheck(row.Lead > 0, "every device has a lead");
    const int found = list.Find(row.Size, row.Speed, row.Stroke);
    FuzzCheck(found > 0 && found <= i, "every device is found");
  }
}

/// Any bytes as both catalogues.
inline void FuzzDeviceList(std::string_view bytes) {
  FuzzDoors virt;
  for (const char* name : {"qvdevice.lst", "nqvdevice.lst"}) {
    virt.files.Put(ProgramFile(name), std::string(bytes));
  }
  DeviceListRecord& list = DeviceList[0];
  const bool good_old = ReadDeviceListOldAxis(0) == 0;
  CheckDeviceList(list, good_old);
  const bool good = ReadDeviceListNewAxis(0) == 0;
  CheckDeviceList(list, good);
  FuzzCheck(good != bool(DevListMissing[0]), "the result agrees with the state");
  for (const std::string& size : list.Sizes) {
    MakeSpeedListNew(0, size);
    FuzzCheck(!list.Speeds.empty() && list.Speeds.size() <= kDeviceListNames, "a size has speeds");
  }
  std::size_t boxes = (good_old ? 0u : 1u) + (good ? 0u : 1u);
  for (const std::string& rows : DeviceLookup.LeftOutTold) boxes += rows.empty() ? 0 : 1;
  FuzzCheck(virt.forms.boxes.size() == boxes, "one box a failure and a list with rows left out");
  const DeviceRecord row = list.Rows[1];
  const bool found = FindDeviceNew(row.Size, row.Speed, row.Stroke) == 0;
  FuzzCheck(found == (good && list.RowCount > 0), "a lookup agrees with the list");
  const int kind = GetPgKindNew(row.Size, row.Speed, row.Stroke);
  FuzzCheck(found ? kind >= 0 && kind <= 2 : kind == kKindUnknown, "a kind is one of three");

  DeviceList.fill(DeviceListRecord{});
  DevListMissing.fill(False);
  DeviceLookup = DeviceLookupRecord{};
}

}  // namespace tr7
