#include "posi/posi_wire.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "base/text_helpers.h"
#include "posi/posi_table.h"

namespace tr7 {
namespace {

constexpr std::size_t kFirstField = 6;  // behind "0RP" and the number
constexpr std::int64_t kPulseSpan = 1 << 18;

/// Widths of the fields of one axis, way and position together.
constexpr std::array<int, 5> kAxisWidths{3, 2, 5, 2, 2};
constexpr std::array<int, 3> kCommonWidths{1, 1, 2};

using Fields = std::array<std::int64_t, kPosiColumns>;

/// Reads the next field of a width; false when it is no number.
bool TakeField(std::string_view& rest, int width, std::int64_t& value) {
  value = HexValue(rest.substr(0, static_cast<std::size_t>(width)));
  rest.remove_prefix(static_cast<std::size_t>(width));
  return value >= 0;
}

bool TakeAxis(std::string_view& rest, int axis, Fields& fields) {
  std::array<std::int64_t, kAxisWidths.size()> raw{};
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (!TakeField(rest, kAxisWidths[i], raw[i])) return false;
  }
  const int base = AxisBase(axis);
  fields[base + kVel] = raw[0];
  fields[base + kAcc] = raw[1];
  // The top two of the 20 bits are the way, the rest is the position.
  fields[base + kWay] = raw[2] / kPulseSpan;
  fields[base + kPosi] = raw[2] % kPulseSpan;
  fields[base + kPf] = raw[3];
  fields[base + kPs] = raw[4];
  return true;
}

std::int64_t RecordValue(int col, int number) {
  return static_cast<std::int64_t>(ValueOf(PosiTable.PosiRec[col][number]));
}

std::string AxisText(int axis, int number) {
  const int base = AxisBase(axis);
  const std::int64_t way_and_position =
      RecordValue(base + kWay, number) * kPulseSpan + RecordValue(base + kPosi, number);
  return HexPad(RecordValue(base + kVel, number), 3) + HexPad(RecordValue(base + kAcc, number), 2) +
         HexPad(way_and_position, 5) + HexPad(RecordValue(base + kPf, number), 2) +
         HexPad(RecordValue(base + kPs, number), 2);
}

/// The fields of a reply line; false when it is no record of `number`.
bool TakeRecord(const std::string& reply, int number, Fields& fields) {
  if (static_cast<int>(reply.size()) != kPosiReplyLength) return false;
  if (HexValue(std::string_view(reply).substr(3, 3)) != number) return false;
  std::string_view rest = std::string_view(reply).substr(kFirstField);
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!TakeAxis(rest, axis, fields)) return false;
  }
  for (std::size_t i = 0; i < kCommonWidths.size(); ++i) {
    if (!TakeField(rest, kCommonWidths[i], fields[kItpl + i])) return false;
  }
  return true;
}

}  // namespace

bool IsPosiRecord(const std::string& reply, int number) {
  Fields fields{};
  return TakeRecord(reply, number, fields);
}

bool DecodePosiRecord(const std::string& reply, int number) {
  Fields fields{};
  if (!TakeRecord(reply, number, fields)) return false;
  for (std::size_t col = 1; col <= kSm; ++col) {
    PosiTable.PosiStage[col][number] = static_cast<double>(fields[col]);
  }
  PosiTable.StageHolds.set(number);
  return true;
}

std::string EncodePosiRecord(int number) {
  std::string text = "0WP" + HexPad(number, 3);
  for (int axis = 0; axis < kAxes; ++axis) text += AxisText(axis, number);
  return text + HexPad(RecordValue(kItpl, number), 1) + HexPad(RecordValue(kOut, number), 1) +
         HexPad(RecordValue(kSm, number), 2);
}

}  // namespace tr7
