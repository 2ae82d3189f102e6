#include "posi/posi_check.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/scope.h"
#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "posi/field_range.h"
#include "posi/posi_edits.h"
#include "posi/posi_format.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "posi/result_view.h"
#include "posi/syogo_flags.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgListSeparator = 6350;
constexpr int kMsgCannotConvert = 6356;
constexpr double kFillerVel = 30, kFillerAcc = 1;

struct NumberRange {
  int first, last;
};

const std::string& Cell(int number, int col) {
  return frmPosi.flgdData.Text(RowOfPosition(number), col);
}

bool InUse(int axis) { return !AppState.AxisMuko[axis]; }

void ClearResult() {
  ClearSyogo();
  PosiTable.PosiLineBad.fill(False);
  PosiTable.PosiBadLineList.clear();
  PosiTable.PosiBadLineCount = 0;
}

/// The operation's range as far as it is loaded. A range that is not loaded at all stands for the
/// whole table: nothing may pass as good unseen.
NumberRange RangeToCheck() {
  const NumberRange loaded{AppState.PosiFirstNo, AppState.PosiLastNo};
  const NumberRange range{std::max<int>(AppState.PosiFromNo, loaded.first),
                          std::min<int>(AppState.PosiToNo, loaded.last)};
  return range.first <= range.last ? range : loaded;
}

// Phase one: every cell's own test. Nothing but flags is written.

void CheckCell(int number, int col) {
  const std::string& cell = Cell(number, col);
  const bool signed_position =
      AppState.CtMode && AxisOfColumn(col) >= 0 && FieldOfColumn(col) == kPosi;
  if (!CellInRange(col, signed_position ? SplitPosiText(cell).number : cell)) FlagCell(col, number);
}

void CheckAxis(int number, int axis) {
  for (int field = kVel; field <= kPs; ++field) {
    const int col = AxisBase(axis) + field;
    if (AppState.CtMode && field != kPosi) {
      // The way stands in the position's sign; a hidden cell counts where it holds something.
      if (field == kWay || Cell(number, col).empty()) continue;
    }
    CheckCell(number, col);
  }
}

void CheckLine(int number) {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (InUse(axis)) CheckAxis(number, axis);
  }
  if (!AppState.CtMode) {
    for (int col = kItpl; col <= kSm; ++col) CheckCell(number, col);
  }
  if (!LineIsFlagged(number)) return;
  PosiTable.PosiLineBad[number] = True;
  ++PosiTable.PosiBadLineCount;
  ++PosiTable.SyogoCount;
  PosiTable.PosiBadLineList += std::to_string(number) + Text(kMsgListSeparator);
}

// Phase two: the grid's texts become the table.

Variant& Record(int col, int number) { return PosiTable.PosiRec[col][number]; }

void StoreLength(int number, int axis, double pulses, double mm) {
  PosiTable.PosiPulse[axis][number] = static_cast<std::int32_t>(pulses);
  PosiTable.PosiMm[axis][number] = mm;
  Record(AxisBase(axis) + kPosi, number) = static_cast<double>(PosiTable.PosiPulse[axis][number]);
}

void CommitPosi(int number, int axis, double value) {
  const DevSettingRecord& device = DevSetting[axis];
  if (AppState.DispMmUnit) {
    StoreLength(number, axis, MmToPulse(device.Lead, device.Ppr, value).value_or(0), value);
  } else {
    StoreLength(number, axis, value, PulseToMm(device.Lead, device.Ppr, value).value_or(0));
  }
}

void CommitFillers(int number, int axis) {
  const int base = AxisBase(axis);
  Record(base + kVel, number) = kFillerVel;
  Record(base + kAcc, number) = kFillerAcc;
  for (const int field : {kWay, kPf, kPs}) Record(base + field, number) = 0.0;
}

void CommitAxis(int number, int axis) {
  const int base = AxisBase(axis);
  if (!InUse(axis)) {
    CommitFillers(number, axis);
    StoreLength(number, axis, 0, 0);
  } else if (AppState.CtMode) {
    CommitFillers(number, axis);
    const WayAndNumber posi = SplitPosiText(Cell(number, base + kPosi));
    Record(base + kWay, number) = static_cast<double>(posi.way);
    CommitPosi(number, axis, Val(posi.number));
  } else {
    for (const int field : {kVel, kWay, kPf, kPs}) {
      Record(base + field, number) = Val(Cell(number, base + field));
    }
    Record(base + kAcc, number) = StoredAcc(Cell(number, base + kAcc));
    CommitPosi(number, axis, Val(Cell(number, base + kPosi)));
  }
}

void CommitLine(int number) {
  ++PosiUndo.commits;
  for (int axis = 0; axis < kAxes; ++axis) CommitAxis(number, axis);
  for (int col = kItpl; col <= kSm; ++col) Record(col, number) = Val(Cell(number, col));
  Record(kComment, number) = Cell(number, kComment);
  const int row = RowOfPosition(number);
  frmPosi.SourceNo.at(row - kPosiHeaderRows) = static_cast<std::int16_t>(number);
}

/// Both phases, the grid at rest. True: all lines were good and are committed.
bool CheckAndCommit(const NumberRange& range) {
  bool& input_on = frmPosi.flgdData.Enabled;
  const ScopeExit input([was_on = input_on] { frmPosi.flgdData.Enabled = was_on; });
  input_on = false;
  FG_HighSyoriStart();
  for (int n = range.first; n <= range.last; ++n) CheckLine(n);
  const bool good = PosiTable.PosiBadLineList.empty();
  if (good) {
    for (int n = range.first; n <= range.last; ++n) CommitLine(n);
  }
  FG_InitPos();
  FG_HighSyoriEnd();
  return good;
}

}  // namespace

std::string ConversionTrouble() {
  for (int axis = 0; axis < kAxes; ++axis) {
    const DevSettingRecord& device = DevSetting[axis];
    if (!InUse(axis) || (device.Lead > 0 && device.Ppr > 0)) continue;
    return Text(kMsgCannotConvert, std::to_string(axis + 1));
  }
  return {};
}

bool AllAxesConvert() {
  const std::string trouble = ConversionTrouble();
  if (!trouble.empty()) MsgBox(trouble);
  return trouble.empty();
}

int PosiDataCheck3() {
  ClearResult();
  if (frmPosi.flgdData.Rows() <= kPosiHeaderRows) {
    AppState.PosiFirstNo = AppState.PosiLastNo = AppState.PosiCount = 0;
    return 0;
  }
  if (!AllAxesConvert()) return 1;
  if (CheckAndCommit(RangeToCheck())) return 0;
  ShowSyogoKekka(false);
  ClearSyogo();
  return 1;
}

int PosiDataCheck3Prg() { return PosiDataCheck3(); }

bool PosiDataCheckAll() {
  AppState.PosiFromNo = AppState.PosiFirstNo;
  AppState.PosiToNo = AppState.PosiLastNo;
  return PosiDataCheck3() == 0;
}

std::bitset<kPosiSlots> RefusedLines() {
  std::bitset<kPosiSlots> refused;
  if (!ConversionTrouble().empty()) return refused;
  ClearResult();
  for (int n = AppState.PosiFirstNo; n <= AppState.PosiLastNo; ++n) {
    CheckLine(n);
    refused[n] = PosiTable.PosiLineBad[n];
  }
  ClearResult();
  return refused;
}

int Check_flgdLineNo() {
  if (AppState.PosiFirstNo >= 1 && frmPosi.flgdData.Rows() > kPosiHeaderRows) return 0;
  MsgBox(TwoLines(433, 434));
  return 1;
}

}  // namespace tr7
