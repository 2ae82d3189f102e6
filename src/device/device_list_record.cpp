#include "device/device_list_record.h"

#include "base/text_helpers.h"

namespace tr7 {

bool DeviceListRecord::SameSize(const std::string& a, const std::string& b) const {
  return SizeIsNumber ? Val(a) == Val(b) : a == b;
}

int DeviceListRecord::Find(const std::string& size, const std::string& speed, int stroke) const {
  for (int i = 1; i <= RowCount; ++i) {
    const DeviceRecord& row = Rows[i];
    if (SameSize(row.Size, size) && row.Speed == speed && row.Stroke == stroke) return i;
  }
  return 0;
}

}  // namespace tr7
