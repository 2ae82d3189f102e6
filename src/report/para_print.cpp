#include "report/para_print.h"

#include <array>
#include <optional>

#include "base/text_helpers.h"
#include "device/unit_conversion.h"
#include "forms/frm_parameta2.h"
#include "para/para_columns.h"
#include "para/para_fields.h"
#include "para/para_file_flow.h"
#include "para/para_mm.h"
#include "para/para_take_view.h"
#include "para/para_value_text.h"
#include "para/para_verify.h"
#include "para/param_set.h"
#include "report/para_report.h"
#include "report/print_flow.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgAskShown = 684, kMsgAskFile = 682, kMsgFileTitle = 683, kMsgUnknown = 7610;
constexpr int kMsgWrong = 1524, kMsgUnit = 7649;
constexpr int kRowPosPrg = 33;

bool IsLength(int row) { return row == kRowStroke || row == kRowZone1 || row == kRowZone2; }

/// The device as its name has it; what is missing is dashes.
std::string DeviceText(const std::array<Variant, ParaTableRecord::kRows>& column) {
  const std::string size = Trim(TextOf(column[kPrintedSizeRow]));
  const std::string speed = Trim(TextOf(column[kPrintedSpeedRow]));
  const double stroke = ValueOf(column[kPrintedStrokeRow]);
  return (size.empty() ? "--" : size) + (speed.empty() ? "-" : speed) + "-" +
         (stroke > 0 ? PlainDecimal(stroke) : "--");
}

/// `ParaTable` as it is printed; `set` is what it was made from.
std::string PrintedText(const ParamSetRecord& set, int row, int axis) {
  const auto& column = ParaTable[static_cast<std::size_t>(axis)];
  if (row == kRowActuator) return DeviceText(column);
  if (row == kRowPosPrg) return set.PosPrg == 1 ? "PRG" : "POS";
  if (IsLength(row)) return Trim(TextOf(column[static_cast<std::size_t>(row)]));
  return ParaValueText(set, row, axis);
}

Outcome Print(ParamSetRecord& set, int axis_mask, const std::string& path) {
  ParaToPrintTable(set);
  ParaRows rows;
  rows.AxisMask = axis_mask;
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) {
      rows.Texts[row][axis] = PrintedText(set, row, axis);
    }
  }
  SheetHead head = HeadOfFile(path);
  head.Foot = Text(kMsgUnit, AppState.DispMmUnit ? "mm" : "pls") + "   " + head.Foot;
  return PrintReport(PrintParaTable(rows, head));
}

/// Lengths in millimetres, by the set's own scales.
void DeriveMm(ParamSetRecord& set) {
  for (const ParaMmField& field : ParaMmFields()) {
    for (int axis = 0; axis < kAxes; ++axis) {
      const auto mm =
          PulseToMm(set.AxisLead[axis], set.AxisPulse[axis], ParaValue(set, field.Row, axis));
      (set.*field.Text)[axis] = mm ? ParaMmText(*mm) : std::string();
    }
  }
}

/// What the view has given.
Outcome PrintParamSet() { return Print(ParamSet, LiveAxisMask(), {}); }

/// What is known without the view, which would keep the texts in millimetres.
Outcome PrintKnown() {
  ParamSetRecord set = ParamSet;
  if (set == ParamSetRecord{}) {
    Tell(kMsgUnknown);
    return Outcome::Failed;
  }
  DeriveMm(set);
  return Print(set, LiveAxisMask(), {});
}

/// An empty field would stand as 0 on paper: it counts as a wrong one.
bool ViewMayBePrinted(FilledCheck& filled) {
  return filled.Holds(Text(kMsgWrong)) && TakeParaView(Text(kMsgWrong));
}

}  // namespace

Outcome PrintShownPara() {
  if (!frmParameta2.Loaded) return PrintKnown();
  SettleParaColumns();
  FilledCheck filled;
  return ViewMayBePrinted(filled) ? PrintParamSet() : Outcome::Failed;
}

Outcome PrintParaFile(const std::string& path) {
  if (!ParaFileIsRead(path)) return Outcome::Failed;
  ParamSetRecord set = ParamSetOfTable().value_or(ParamSetRecord{});
  DeriveMm(set);
  return Print(set, set.OneAxis, path);
}

void PrintParaOnScreen() {
  FilledCheck filled;
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!AskYes(kMsgAskShown)) return;
  if (ViewMayBePrinted(filled)) static_cast<void>(PrintParamSet());
}

void PrintParaOfFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!AskYes(kMsgAskFile)) return;
  const auto path = AskOpenPath(kParaDataFile, kMsgFileTitle);
  if (path && !path->empty()) static_cast<void>(PrintParaFile(*path));
}

}  // namespace tr7
