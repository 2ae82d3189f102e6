#include "para/std_lists.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "para/para_check.h"
#include "para/param_set.h"
#include "para/std_table.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/file_kind.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgWrongList = 26;
constexpr int kMsgWrongCommon = 27;
constexpr int kMsgNoList = 28;
constexpr int kMsgPutList = 29;
constexpr int kMsgFailed = 36;
constexpr int kMsgNoRow = 6340;
constexpr int kMsgAxis1 = 220;  ///< AXIS2 to AXIS4 follow

constexpr int kTypeNew = 0, kTypeOld = 1, kTypeOldVertical = 2;
constexpr int kHighestType = 4;  ///< that the direct write lets pass

constexpr int kRowSeq = 6, kRowAutoDrive = 11;
constexpr int kRowFunction = 14, kRowAlm = 15, kRowAutoStart = 25, kRowSoftLimit = 30;

int TypeOf(const DevSettingRecord& device) {
  if (device.NewType) return kTypeNew;
  return device.Vertical ? kTypeOldVertical : kTypeOld;
}

int TellWrongHeader(const std::string& text, const std::string& reason) {
  MsgBox(WithReason(text, reason));
  return 1;
}

int TellNoList(const std::string& reason) {
  MsgBox(WithReason(TwoLines(kMsgNoList, kMsgPutList), reason));
  return 1;
}

int ReadStdListOfAxis(int axis) {
  const DevSettingRecord& device = DevSettei[axis];
  if (device.Series != "QV") return 0;
  std::string reason;
  switch (ReadStdFile(device.NewType, TypeOf(device), StdTable[axis], reason)) {
    case StdFileResult::Good:
      return 0;
    case StdFileResult::WrongHeader:
      return TellWrongHeader(Text(kMsgWrongList) + "(" + std::to_string(axis + 1) + "AXIS)",
                             reason);
    default:
      return TellNoList(reason);
  }
}

int ReadCommonList() {
  std::string reason;
  switch (ReadCommonFile(CommonTable, reason)) {
    case StdFileResult::Good:
      return 0;
    case StdFileResult::WrongHeader:
      ParaFlags.ParaFileBad = True;
      return TellWrongHeader(Text(kMsgWrongCommon), reason);
    case StdFileResult::WrongTag:
      ParaFlags.FileFaultText = reason;
      return 1;
    default:
      return TellNoList(reason);
  }
}

int TellFailed() {
  MsgBox(WithReason(Text(kMsgFailed), ParaFlags.FileFaultText));
  return 1;
}

/// The number (from 1) of the first row for this device; one behind the last row without one.
int ScanFor(const DevSettingRecord& device, const StdList& list) {
  const auto found = std::find_if(list.begin(), list.end(), [&](const StdRow& row) {
    return row.Model.Size == device.Size && row.Model.Speed == device.Speed &&
           row.Model.Stroke == device.Stroke;
  });
  return 1 + static_cast<int>(found - list.begin());
}

const StdRow* RowAt(const StdList& list, int number) {
  if (number < 1 || number > static_cast<int>(list.size())) return nullptr;
  return &list[number - 1];
}

/// Values of a list have been seen to fit their rows when it was read.
void Set(int row, int axis, double value) { SetParaValue(ParamSet, row, axis, value); }

double Common(int para_row, std::size_t column = 1) {
  return CommonTable[para_row - kCommonFirstPara][column];
}

void SetFromCommon(int para_row, int axis) { Set(para_row, axis, Common(para_row)); }

/// The rows 1 to 13 that both forms take, without SEQ and AUTODRIVE.
void SetFromRow(const StdRow& row, int axis) {
  for (int i = 1; i <= kRowType; ++i) {
    if (i == kRowSeq || i == kRowAutoDrive) continue;
    Set(i, axis, row.Values[i]);
  }
  ParamSet.Actuator[axis] = row.Actuator;
  ParamSet.ActSize[axis] = row.Model.Size;
  ParamSet.ActSpeed[axis] = row.Model.Speed;
  ParamSet.ActStroke[axis] = static_cast<std::int16_t>(row.Model.Stroke);
}

void SetPg(int axis) {
  const std::size_t column = DevSettei[axis].WithPG ? 2 : 1;
  for (const int row : {kRowFunction, kRowAlm}) Set(row, axis, Common(row, column));
}

/// Rows with one value per axis that come from the common list, without those of the PG.
bool IsCommonAxisRow(int row) { return row > kRowAlm && IsAxisRow(row); }

void SetAxisMask() {
  if (!ParaFlags.AxisMaskFixed) ParaFlags.AxisMask = static_cast<std::int16_t>(AxesInUseMask());
  ParamSet.OneAxis = ParaFlags.AxisMask;
}

/// The device may be offered all the same: whoever has it from the old catalogue finds it counted
/// as of the new type, whose list may lack it.
void NameMissing(int axis) {
  const DevSettingRecord& device = DevSettei[axis];
  ParaFlags.FileFaultText = Text(kMsgNoRow, Text(MsgId::At(kMsgAxis1, axis)),
                                 device.Size + device.Speed + "-" + SpacePad(device.Stroke, 3));
}

/// Fills the present axes. `last_scan` is where the scan of the last of them ended. False when a
/// device has no row.
template <typename Fill>
bool FillPresentAxes(int& last_scan, Fill fill) {
  bool all_found = true;
  for (const int axis : AxesInUse()) {
    last_scan = ScanFor(DevSettei[axis], StdTable[axis]);
    const StdRow* row = RowAt(StdTable[axis], last_scan);
    if (row) SetFromRow(*row, axis);
    if (!row && all_found) NameMissing(axis);
    all_found = all_found && row;
    SetPg(axis);
    fill(axis, row);
  }
  return all_found;
}

bool Holds(int row, int axis) {
  if (row != kRowType) return ParaRowInRange(ParamSet, row, axis);
  return ParamSet.AxisType[axis] >= 0 && ParamSet.AxisType[axis] <= kHighestType;
}

bool AllHold(std::initializer_list<int> rows) {
  for (const int row : rows) {
    for (int axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) {
      const bool counts = !IsAxisRow(row) || !AppState.AxisMuko[axis];
      if (counts && !Holds(row, axis)) return false;
    }
  }
  return true;
}

}  // namespace

int ReadStdLists() {
  for (StdList& list : StdTable) list.clear();
  CommonTable = CommonTableRecord{};
  ParaFlags.FileFaultText.clear();
  for (int axis = 0; axis < kAxes; ++axis) {
    if (ReadStdListOfAxis(axis) != 0) return 1;
  }
  return ReadCommonList();
}

int IniParaFromStd() {
  if (ReadStdLists() != 0) return TellFailed();
  int last_scan = 0;
  const bool all_found = FillPresentAxes(last_scan, [](int axis, const StdRow* row) {
    if (row) Set(kRowAutoDrive, axis, row->Values[kRowAutoDrive]);
    for (int i = kCommonFirstPara; i <= kParaRows; ++i) {
      if (IsCommonAxisRow(i)) SetFromCommon(i, axis);
    }
  });
  // SEQ has a pass of its own over all axes, and takes the row at which the last scan ended, not
  // the axis's own. A list without such a row gives 0.
  for (int axis = 0; axis < kAxes; ++axis) {
    const StdRow* row = RowAt(StdTable[axis], last_scan);
    Set(kRowSeq, axis, row ? row->Values[kRowSeq] : 0);
  }
  for (int i = kCommonFirstPara; i <= kParaRows; ++i) {
    if (!IsAxisRow(i) && i != kRowOneAxis) SetFromCommon(i, 0);
  }
  SetAxisMask();
  return all_found ? 0 : TellFailed();
}

int IniParaFromStdForWrite() {
  if (ReadStdLists() != 0) return TellFailed();
  int last_scan = 0;
  const bool all_found = FillPresentAxes(last_scan, [](int axis, const StdRow*) {
    // Meant so: this form takes SOFT LIMIT from the row of AUTO START PRG No.
    Set(kRowSoftLimit, axis, Common(kRowAutoStart));
  });
  return all_found ? 0 : TellFailed();
}

bool CheckStdRows() { return AllHold({1, 2, 3, 4, 5, 7, 8, 9, 10, 12, 13, 14, 15}); }

int CheckParaFromStd() { return CheckStdRows() && AllHold({20, 21, 22, 16, 17, 18, 19}) ? 0 : 1; }

}  // namespace tr7
