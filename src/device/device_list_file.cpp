#include "device/device_list_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "device/device_model.h"
#include "state/file_kind.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr const char* kOldFile = "qvdevice.lst";
constexpr const char* kNewFile = "nqvdevice.lst";
constexpr int kLastKind = 2;
constexpr int kMsgLeftOut = 6333;
constexpr int kMsgTooManyNames = 6335;

/// Reads the rows of a catalogue.
class Reading {
 public:
  Reading(const std::string& text, DeviceListKind kind, DeviceListRecord& list)
      : items_(text), kind_(kind), list_(list) {}

  /// The count, then that many rows; more behind them are left alone.
  bool Run();
  int Line() const { return items_.Line(); }
  /// The rows left out, each with its line.
  const std::string& LeftOut() const { return left_out_; }

 private:
  bool ReadRow();
  bool ReadNumber(int low, int high, std::int16_t& value);
  bool SkipItems(int count);
  void TakeModel(DeviceRecord& row) const;

  SeqReader items_;
  DeviceListKind kind_;
  DeviceListRecord& list_;
  bool fits_ = true;  ///< every number of the row is within its range
  std::string left_out_;
};

bool Reading::Run() {
  int count = 0;
  if (!items_.ReadInteger(0, kDeviceSlots - 1, count)) return false;
  list_.Rows[0].Raw = std::to_string(count);
  for (int i = 0; i < count; ++i) {
    if (!ReadRow()) return false;
  }
  return true;
}

bool Reading::ReadRow() {
  DeviceRecord row;
  fits_ = true;
  if (!items_.ReadText(row.Raw)) return false;
  const int line = items_.Line();
  // Others are divided by lead and PPR.
  constexpr int kMost = std::numeric_limits<std::int16_t>::max();
  if (!ReadNumber(1, kMost, row.Lead)) return false;
  const bool read = kind_ == DeviceListKind::Old
                        ? SkipItems(2)
                        : ReadNumber(1, kMost, row.Ppr) && ReadNumber(0, kLastKind, row.PgKind) &&
                              ReadNumber(0, kLastKind, row.VKind);
  if (!read) return false;
  if (!fits_) {
    left_out_ += "\n" + AtLine(line, OneLine(row.Raw));
    return true;
  }
  TakeModel(row);
  list_.Rows[++list_.RowCount] = std::move(row);
  return true;
}

/// False when the item is no number; one out of its range stays out of `value`.
bool Reading::ReadNumber(int low, int high, std::int16_t& value) {
  double number = 0;
  if (!items_.ReadNumber(number)) return false;
  const bool fits = number >= low && number <= high && number == std::trunc(number);
  if (fits) value = static_cast<std::int16_t>(number);
  fits_ = fits_ && fits;
  return true;
}

/// Items that nothing uses; they may be anything.
bool Reading::SkipItems(int count) {
  Variant item;
  for (int i = 0; i < count; ++i) {
    if (!items_.ReadItem(item)) return false;
  }
  return true;
}

void Reading::TakeModel(DeviceRecord& row) const {
  DeviceModel model = kind_ == DeviceListKind::Old ? CutOldModel(row.Raw) : CutNewModel(row.Raw);
  row.Size = std::move(model.Size);
  row.Speed = std::move(model.Speed);
  row.Stroke = model.Stroke;
}

/// False when a further name has no place.
bool AddDistinct(std::vector<std::string>& names, const std::string& name) {
  if (std::find(names.begin(), names.end(), name) != names.end()) return true;
  if (names.size() == kDeviceListNames) return false;
  names.push_back(name);
  return true;
}

const DeviceRecord& RowAt(const DeviceListRecord& list, int i) { return list.Rows[i]; }

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

DeviceListReport ReadDeviceListFile(DeviceListKind kind, DeviceListRecord& list) {
  list = DeviceListRecord{};
  list.SizeIsNumber = kind == DeviceListKind::Old;
  DeviceListReport report;
  std::string text;
  const std::string name = kind == DeviceListKind::Old ? kOldFile : kNewFile;
  if (!ReadListFile(name, text, report.Fault)) return report;
  Reading reading(text, kind, list);
  const bool whole = reading.Run();
  report.Read = whole && CollectNames(list);
  if (!whole) {
    report.Fault = ListFault(name, text, FileKind::DeviceList, reading.Line());
  } else if (!report.Read) {
    report.Fault = Text(kMsgTooManyNames, name, std::to_string(kDeviceListNames));
  } else if (!reading.LeftOut().empty()) {
    report.LeftOut = Text(kMsgLeftOut, name) + "\n" + reading.LeftOut();
  }
  return report;
}

}  // namespace tr7
