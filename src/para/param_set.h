#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "base/axes.h"
#include "base/bool16.h"
#include "base/variant.h"
#include "state/app_state.h"

namespace tr7 {

/// The controller's parameter memory as the tool holds it. Rows are numbered as in the file and in
/// every transfer. Axis arrays: index 0 to 3 for AXIS1 to AXIS4.
struct ParamSetRecord {
  template <typename Value>
  using PerAxis = AxisArray<Value>;

  // HOME, rows 1 to 6
  PerAxis<double> HomeOffset{};  ///< pulses
  PerAxis<std::int16_t> HomePush{};
  PerAxis<std::int16_t> HomeVel{};
  PerAxis<std::int16_t> HomeOfsVel{};
  PerAxis<std::int16_t> HomePushVel{};
  PerAxis<std::int16_t> HomeSeq{};
  // AXIS, rows 7 to 13
  PerAxis<double> AxisStroke{};       ///< pulses
  PerAxis<std::int16_t> AxisLead{};   ///< mm per motor turn
  PerAxis<std::int32_t> AxisPulse{};  ///< pulses per motor turn
  PerAxis<std::int16_t> JogVel{};
  PerAxis<std::int16_t> AutoDrive{};
  PerAxis<std::int16_t> AxisType{};
  PerAxis<std::string> Actuator;  ///< size, speed and stroke run together
  // PG, rows 14 and 15
  PerAxis<std::int16_t> PgFunction{};  ///< 0: no PG
  PerAxis<double> PgAlarm{};
  // ETC, rows 16 to 24
  std::int16_t HomeOut = 0;  ///< output pattern
  std::int16_t GrpEnable = 0;
  std::int16_t SmTimeout = 0;
  std::int16_t SmTimer = 0;
  PerAxis<std::int16_t> ZoneEnable{};
  PerAxis<double> Zone1{};  ///< pulses
  PerAxis<double> Zone2{};  ///< pulses
  PerAxis<std::int16_t> InPWidth{};
  PerAxis<std::int16_t> HoldTime{};
  // SPECIAL, rows 25 to 34
  std::int16_t AutoStartPrg = 0;  ///< 0: none
  std::int16_t OneAxis = 0;       ///< AXIS: mask of the axes in use, 1, 3, 7 or 15
  std::int16_t AutoHome = 0;
  PerAxis<std::int16_t> PgTimer{};
  PerAxis<std::int16_t> LsSearchTimer{};
  PerAxis<std::int16_t> SoftLimit{};
  std::int16_t EmgLogic = 0;  ///< 0 logic A, 1 logic B
  std::int16_t Alm1Clear = 0;
  std::int16_t PosPrg = 0;  ///< 1: program mode
  std::int16_t PputWrite = 0;

  // What belongs to the rows above: the parts of `Actuator`, and lengths as the view shows them.
  PerAxis<std::string> ActSize;  ///< 3 characters
  PerAxis<std::string> ActSpeed;
  PerAxis<std::int16_t> ActStroke{};  ///< mm
  PerAxis<double> MmStroke{};
  PerAxis<std::string> MmStrokeText;
  PerAxis<double> MmZone1{};
  PerAxis<std::string> MmZone1Text;
  PerAxis<double> MmZone2{};
  PerAxis<std::string> MmZone2Text;

  bool operator==(const ParamSetRecord&) const = default;
};

extern ParamSetRecord ParamSet;

// Rows by number. Each is one value per axis or, at axis 0 alone, one for the controller.

inline constexpr int kParaRows = 34;
inline constexpr int kRowHomeVel = 3, kRowStroke = 7, kRowLead = 8, kRowPulse = 9, kRowJogVel = 10,
                     kRowType = 12, kRowActuator = 13, kRowZone1 = 21, kRowZone2 = 22,
                     kRowOneAxis = 26;

/// True for a row (1 to 34) with one value per axis.
bool IsAxisRow(int row);
/// The value of a numeric row (any but `kRowActuator`).
double ParaValue(const ParamSetRecord& set, int row, int axis);
/// Stores a value, halves to the even neighbour where the row is whole; false, and nothing stored,
/// when the row's type cannot hold it.
bool SetParaValue(ParamSetRecord& set, int row, int axis, double value);

/// Cuts the device text into `ActSize`, `ActSpeed` and `ActStroke`: 7 characters hold a size of 3,
/// any other text a size of 2, which gets a blank in front.
void CutActuator(ParamSetRecord& set, int axis);
/// The device text: size, speed, and the stroke (mm) in 3 digits.
std::string JoinActuator(const std::string& size, const std::string& speed, int stroke);

/// The same rows as files and the controller deliver them: [column = axis index][row number]. An
/// empty slot is an empty text. Row 0 of column 0 is the name of the file that was read.
class ParaTableRecord {
 public:
  static constexpr std::size_t kColumns = 5;
  static constexpr std::size_t kRows = 41;
  ParaTableRecord() { Clear(); }
  std::array<Variant, kRows>& operator[](std::size_t column) { return cells_.at(column); }
  const std::array<Variant, kRows>& operator[](std::size_t column) const {
    return cells_.at(column);
  }
  void Clear();
  bool operator==(const ParaTableRecord&) const = default;

 private:
  std::array<std::array<Variant, kRows>, kColumns> cells_;
};

extern ParaTableRecord ParaTable;

/// `ParaTable` into `ParamSet`, with the device texts cut. 0; 1 when an item is no number or does
/// not fit its row: `ParamSet` stays whole then, and nothing is shown. An empty number is 0.
int TakeParamTable();
/// The first row of `ParaTable` with an item that `TakeParamTable` refuses; 0: it takes them all.
int RefusedParaRow();
/// `ParaTable` as a set of its own; nothing when `TakeParamTable` refuses it.
std::optional<ParamSetRecord> ParamSetOfTable();
/// The rows of `set` as a table; unused slots and columns are empty.
ParaTableRecord ParaTableOf(const ParamSetRecord& set);

/// What the parameter flows leave for one another.
struct ParaFlagsRecord {
  Bool16 ParaFileBad;  ///< the last parameter or list file was none, or damaged
  Bool16 ParaFileWriteFailed;
  std::string FileFaultText;   ///< why a file could not be read or written; empty: nothing to add
  Bool16 AxisMaskFixed;        ///< a device dialogue has fixed `AxisMask` itself
  std::int16_t AxisMask = 0;   ///< sum of 2 to the axis index over the axes in use
  Bool16 OpenParaAfterDevice;  ///< the device dialogue's detail button was pressed
  /// Axes that the parameter view shows by `comboOneAxis`, 1 to 4; 0: the axes in use.
  std::int16_t ShownAxisCount = 0;
  /// What the last verification found different, a line each for HOME, AXIS, PG, ETC and SP.
  std::array<std::string, 5> VerifyLines;
  std::string VerifyDetails;  ///< the same with the values of both sides, a line each
};

extern ParaFlagsRecord ParaFlags;

/// True for an axis whose parameters count: `AxisAbsent` (here `AxisMuko`) decides, unless the user
/// has set another number of axes in the parameter view.
bool IsLiveAxis(int axis);
/// The live axes as a mask.
int LiveAxisMask();

}  // namespace tr7
