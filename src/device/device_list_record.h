#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tr7 {

inline constexpr int kDeviceSlots = 100;     ///< slot 0 holds the count, rows are slots 1 to 99
inline constexpr int kDeviceListNames = 11;  ///< distinct sizes, and speeds, at most

/// One device of a catalogue.
struct DeviceRecord {
  std::string Raw;          ///< the model field as it stands in the file; of slot 0 the count
  std::string Size;         ///< 3 characters; of an old list the number alone ("28")
  std::string Speed;        ///< 1 character
  int Stroke = 0;           ///< mm
  std::int16_t Lead = 0;    ///< mm per motor turn
  std::int16_t PgKind = 0;  ///< pulse generator: 0 none, 1 may be chosen, 2 always
  std::int16_t VKind = 0;   ///< vertical variant: the same three values
  std::int16_t Ppr = 0;     ///< pulses per motor turn; an old list tells none
};

/// A catalogue in memory.
struct DeviceListRecord {
  std::array<DeviceRecord, kDeviceSlots> Rows;
  int RowCount = 0;                 ///< rows are slots 1 to `RowCount`
  std::vector<std::string> Sizes;   ///< distinct, in the file's order
  std::vector<std::string> Speeds;  ///< distinct; of a new list those of one size, on demand
  bool SizeIsNumber = false;        ///< an old list, whose sizes compare by value

  /// True when both name one size: by value in an old list ("28" is " 28"), else as text.
  bool SameSize(const std::string& a, const std::string& b) const;
  /// The slot (from 1) of the first row for this device; 0: there is none.
  int Find(const std::string& size, const std::string& speed, int stroke) const;
};

}  // namespace tr7
