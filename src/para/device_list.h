#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/app_state.h"
#include "core/bool16.h"

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

/// Each axis (0 to 3) may use the other catalogue.
extern std::array<DeviceListRecord, kAxes> DeviceList;
/// The last attempt to read the list of this axis failed.
extern std::array<Bool16, kAxes> DevListMissing;

// Readers of the catalogues "qvdevice.lst" (old type) and "nqvdevice.lst" (new type). 0, or 1 when
// a file is missing or damaged: then messages 15 and 16 have been shown with the reason,
// `DevListMissing` of that axis is True, its sizes and speeds are empty and the rows read so far
// stand. Rows left out for a number out of its range are named once.

/// The old list for every axis whose `Series` is "QV". An axis of another series ends it with 1.
int ReadDeviceListOld();
int ReadDeviceListOldAxis(int axis);
/// The new list for all axes.
int ReadDeviceListNew();
int ReadDeviceListNewAxis(int axis);

/// `Speeds` of an axis with a new list: those of the rows of this size.
void MakeSpeedListNew(int axis, const std::string& size);

/// `Lead` of every present axis from its list; then the strokes in mm. A device that a list lacks
/// keeps its lead, and message 17 is shown.
void SetLeadFromOldList();

/// What the lookups below leave behind.
struct DeviceLookupRecord {
  std::int16_t Lead = 0;  ///< of `GetLeadAndPprNew`
  std::int16_t Ppr = 0;
  Bool16 ListMissing;                      ///< the last lookup could not read the list
  std::array<std::string, 2> LeftOutTold;  ///< old, new: rows left out as the user knows them
};
extern DeviceLookupRecord DeviceLookup;

// Lookups. Each reads "nqvdevice.lst" afresh, so that they work before any list is in memory.

/// 0 found; 1 not, or the list is missing (after message 15).
int FindDeviceNew(const std::string& size, const std::string& speed, int stroke);
/// 0: `DeviceLookup` holds lead and PPR; 1: not found, or the list is missing (after messages 15
/// and 16).
int GetLeadAndPprNew(const std::string& size, const std::string& speed, int stroke);
/// `PgKind` or `VKind` of the device; 99: not found, or the list is missing (after message 15).
int GetPgKindNew(const std::string& size, const std::string& speed, int stroke);
int GetVKindNew(const std::string& size, const std::string& speed, int stroke);
inline constexpr int kKindUnknown = 99;

}  // namespace tr7
