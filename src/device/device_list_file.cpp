#include "device/device_list_file.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/seq_file.h"
#include "device/device_model.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr const char* kOldFile = "qvdevice.lst";
constexpr const char* kNewFile = "nqvdevice.lst";
constexpr int kLastKind = 2;

/// A number that every device needs and that others are divided by: at least 1.
bool ReadPositive(SeqReader& reader, std::int16_t& value) {
  int number = 0;
  if (!reader.ReadInteger(1, std::numeric_limits<std::int16_t>::max(), number)) return false;
  value = static_cast<std::int16_t>(number);
  return true;
}

bool ReadKind(SeqReader& reader, std::int16_t& kind) {
  int number = 0;
  if (!reader.ReadInteger(0, kLastKind, number)) return false;
  kind = static_cast<std::int16_t>(number);
  return true;
}

/// Items that nothing uses; they may be anything.
bool SkipItems(SeqReader& reader, int count) {
  Variant item;
  for (int i = 0; i < count; ++i) {
    if (!reader.ReadItem(item)) return false;
  }
  return true;
}

bool ReadRow(SeqReader& reader, DeviceListKind kind, DeviceRecord& row) {
  if (!reader.ReadText(row.Raw) || !ReadPositive(reader, row.Lead)) return false;
  const bool read = kind == DeviceListKind::Old
                        ? SkipItems(reader, 2)
                        : ReadPositive(reader, row.Ppr) && ReadKind(reader, row.PgKind) &&
                              ReadKind(reader, row.VKind);
  if (!read) return false;
  DeviceModel model = kind == DeviceListKind::Old ? CutOldModel(row.Raw) : CutNewModel(row.Raw);
  row.Size = std::move(model.Size);
  row.Speed = std::move(model.Speed);
  row.Stroke = model.Stroke;
  return true;
}

/// The count, then that many rows; more behind them are left alone.
bool ReadRows(SeqReader& reader, DeviceListKind kind, DeviceListRecord& list) {
  int count = 0;
  if (!reader.ReadInteger(0, kDeviceSlots - 1, count)) return false;
  list.Rows[0].Raw = std::to_string(count);
  for (int i = 1; i <= count; ++i) {
    DeviceRecord row;
    if (!ReadRow(reader, kind, row)) return false;
    list.Rows[static_cast<std::size_t>(i)] = std::move(row);
    list.RowCount = i;
  }
  return true;
}

/// False when a further name has no place.
bool AddDistinct(std::vector<std::string>& names, const std::string& name) {
  if (std::find(names.begin(), names.end(), name) != names.end()) return true;
  if (names.size() == kDeviceListNames) return false;
  names.push_back(name);
  return true;
}

const DeviceRecord& RowAt(const DeviceListRecord& list, int i) {
  return list.Rows[static_cast<std::size_t>(i)];
}

/// The sizes, and what speeds can be told before a size is chosen.
bool CollectNames(DeviceListRecord& list) {
  std::vector<std::string> sizes, speeds;
  for (int i = 1; i <= list.RowCount; ++i) {
    if (!AddDistinct(sizes, RowAt(list, i).Size)) return false;
    if (list.SizeIsNumber && !AddDistinct(speeds, RowAt(list, i).Speed)) return false;
  }
  for (const std::string& size : sizes) {
    std::vector<std::string> of_size;  // there must be place for them when the size is chosen
    if (!list.SizeIsNumber && !SpeedsOfSize(list, size, of_size)) return false;
  }
  list.Sizes = std::move(sizes);
  list.Speeds = std::move(speeds);
  return true;
}

}  // namespace

bool SpeedsOfSize(const DeviceListRecord& list, const std::string& size,
                  std::vector<std::string>& speeds) {
  speeds.clear();
  for (int i = 1; i <= list.RowCount; ++i) {
    const DeviceRecord& row = RowAt(list, i);
    if (row.Size == size && !AddDistinct(speeds, row.Speed)) return false;
  }
  return true;
}

bool ReadDeviceListFile(DeviceListKind kind, DeviceListRecord& list) {
  list = DeviceListRecord{};
  list.SizeIsNumber = kind == DeviceListKind::Old;
  std::string text;
  const char* name = kind == DeviceListKind::Old ? kOldFile : kNewFile;
  if (!ReadTextFile(ProgramFile(name), text).ok) return false;
  SeqReader reader(std::move(text));
  return ReadRows(reader, kind, list) && CollectNames(list);
}

}  // namespace tr7
