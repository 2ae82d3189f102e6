#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/axes.h"
#include "device/device_model.h"
#include "para/param_set.h"
#include "state/app_state.h"

namespace tr7 {

/// Standard values of one device.
struct StdRow {
  DeviceModel Model;
  /// By parameter row: 1 (OFFSET) to 11 (AUTODRIVE) from the list, 12 (TYPE) from the device.
  std::array<double, kRowType + 1> Values{};
  std::string Actuator;  ///< parameter row 13
};

inline constexpr int kStdRowsMax = 999;

/// The standard list of an axis, in the file's order. Rows are numbered from 1.
using StdList = std::vector<StdRow>;
extern AxisArray<StdList> StdTable;

inline constexpr int kCommonRows = 26;
inline constexpr int kCommonColumns = 5;
/// Common row 0 is parameter row 14 (FUNCTION), and so on in order up to row 20, parameter row 34.
inline constexpr int kCommonFirstPara = 14;
inline constexpr int kCommonRowsInUse = 21;

/// Common values by row and column. Column 1 holds what is in use; in the first two rows, FUNCTION
/// and ALM, column 2 holds the values of an actuator with PG.
using CommonTableRecord = std::array<std::array<double, kCommonColumns>, kCommonRows>;
extern CommonTableRecord CommonTable;

enum class StdFileResult {
  Good,
  Unreadable,   ///< missing or damaged
  WrongHeader,  ///< of another kind
  WrongTag,     ///< a section of the common list is not the one that is due
};

/// "tr7nqvstpr.lst" or "tr7qvstpr.lst" into `list`; `type` becomes the TYPE of each row. Where it
/// is not good, `reason` says what is wrong and on which line, of a file that is there.
StdFileResult ReadStdFile(bool new_type, int type, StdList& list, std::string& reason);
/// "tr7cmstpr.lst" into `table`.
StdFileResult ReadCommonFile(CommonTableRecord& table, std::string& reason);

}  // namespace tr7
