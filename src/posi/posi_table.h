#pragma once

#include <bitset>
#include <cstdint>
#include <limits>
#include <string>

#include "base/axes.h"
#include "base/bool16.h"
#include "base/indexed_array.h"
#include "base/variant.h"
#include "state/app_state.h"

namespace tr7 {

inline constexpr int kPosiMaxNo = 999;       ///< position numbers run from 1 to this
inline constexpr int kPosiSlots = 1000;      ///< indexed by position number; slot 0 stays unused
inline constexpr int kMostPulses = 0x3FFFF;  ///< what the 18 bits of the line hold
/// `PosiMm` of a position whose axis has no device to convert by; equal to nothing, itself
/// included.
inline constexpr double kNoMm = std::numeric_limits<double>::quiet_NaN();
inline constexpr int kCommentChars = 20;  ///< characters of a comment
inline constexpr int kPosiColumns = 29;   ///< columns 1 to 28; column 0 unused

// Columns of one axis group, behind AxisBase(axis).
inline constexpr int kVel = 1, kAcc = 2, kWay = 3, kPosi = 4, kPf = 5, kPs = 6;
// Common columns.
inline constexpr int kItpl = 25, kOut = 26, kSm = 27, kComment = 28;

/// Column in front of the group of an axis (index 0 to 3).
constexpr int AxisBase(int axis) { return 6 * axis; }
/// Axis index 0 to 3 of a column, -1 for the common columns and column 0.
constexpr int AxisOfColumn(int col) { return col >= 1 && col <= 24 ? (col - 1) / 6 : -1; }
/// `kVel` to `kPs` within its group for columns 1 to 24.
constexpr int FieldOfColumn(int col) { return (col - 1) % 6 + 1; }

/// One value for each position, by its number, and for each column of the table.
template <typename T>
using PosiSlots = IndexedArray<T, kPosiSlots>;
template <typename T>
using PosiColumns = IndexedArray<T, kPosiColumns>;

/// The controller's position table. Pulses are the master; ACC is held in tens of milliseconds.
struct PosiTableRecord {
  PosiColumns<PosiSlots<Variant>> PosiRec;    ///< [column][number]
  PosiColumns<PosiSlots<Variant>> PosiStage;  ///< data coming in
  std::bitset<kPosiSlots> StageHolds;  ///< numbers that came in; the others have start values
  AxisArray<PosiSlots<std::int32_t>> PosiPulse{};
  AxisArray<PosiSlots<double>> PosiMm{};
  PosiSlots<std::string> PosiRawReply;         ///< [number - 1]: reply line, or line to send
  PosiColumns<PosiSlots<Bool16>> SyogoCell{};  ///< bad or different
  PosiSlots<Bool16> PosiLineBad{};             ///< failed the last check
  std::int16_t SyogoCount = 0;                 ///< number of flagged lines
  std::string PosiBadLineList;  ///< numbers of the bad lines, a separator behind each
  std::int16_t PosiBadLineCount = 0;
  std::string Name;        ///< file path without its ending, or "New Data", or "Inside of C/T"
  std::string FileEnding;  ///< ".qvd", or what ends the path of a file that the user named so
};

extern PosiTableRecord PosiTable;

/// Clears raw replies, pulses and millimetres, and fills record and stage with the defaults of a
/// new table for all 999 positions.
void PosiTableInit();

/// The stage as every load begins: it holds no number. The second fills the numbers that it does
/// not hold with the defaults of a new table, for the devices in use.
void PosiStageInit();
void PosiStageFillRest();

/// Moves the stage into the record for `PosiFirstNo` to `PosiLastNo`; the "Posi" columns go to the
/// pulses (and to the record, which always equals them). A position out of all bounds stays out of
/// all bounds, so that every check refuses it.
void PosiStageCommit();

/// Default of a new table for a column (stored value); ACC follows the axis's device.
double PosiDefault(int col);

}  // namespace tr7
