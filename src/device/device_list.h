#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/axes.h"
#include "base/bool16.h"
#include "device/device_list_record.h"
#include "state/app_state.h"

namespace tr7 {

/// Each axis (0 to 3) may use the other catalogue.
extern AxisArray<DeviceListRecord> DeviceList;
/// The last attempt to read the list of this axis failed.
extern AxisArray<Bool16> DevListMissing;

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
