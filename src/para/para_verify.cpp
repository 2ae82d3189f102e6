#include "para/para_verify.h"

#include <array>
#include <optional>

#include "para/para_blocks.h"
#include "para/para_value_text.h"
#include "para/param_set.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

/// A group of rows, in the order of the box.
struct VerifyGroup {
  MsgId TitleId;
  int FirstRow, LastRow;
};

constexpr std::array<VerifyGroup, 5> kGroups{
    {{673, 1, 6}, {675, 7, 13}, {676, 14, 15}, {677, 16, 24}, {678, 25, 34}}};

constexpr int kRowPputWrite = 34;

bool SameDevice(const ParamSetRecord& a, const ParamSetRecord& b, int axis) {
  return a.ActSize[axis] == b.ActSize[axis] && a.ActSpeed[axis] == b.ActSpeed[axis] &&
         a.ActStroke[axis] == b.ActStroke[axis];
}

/// Meant so: the last row has no comma behind it.
std::string Label(int row, int axis) {
  return ParaCellName({row, axis}) + (row == kRowPputWrite ? "" : ",");
}

void NoteDifference(const ParamSetRecord& other, const ParaCell& cell) {
  ParaFlags.VerifyDetails +=
      DifferenceLine(ParaCellName(cell), ParaValueText(ParamSet, cell.Row, cell.Axis),
                     ParaValueText(other, cell.Row, cell.Axis));
}

std::string LineOf(const VerifyGroup& group, const AxisList& axes, const ParamSetRecord& other) {
  const AxisList first_alone(1);
  std::string line;
  for (int row = group.FirstRow; row <= group.LastRow; ++row) {
    for (const int axis : IsAxisRow(row) ? axes : first_alone) {
      if (SameParaCell(ParamSet, other, {row, axis})) continue;
      line += Label(row, axis);
      NoteDifference(other, {row, axis});
    }
  }
  return line;
}

}  // namespace

bool SameParaCell(const ParamSetRecord& a, const ParamSetRecord& b, const ParaCell& cell) {
  if (cell.Row == kRowActuator) return SameDevice(a, b, cell.Axis);
  return ParaValue(a, cell.Row, cell.Axis) == ParaValue(b, cell.Row, cell.Axis);
}

int BuildParaVerifyReport(int mask) {
  ParaFlags.VerifyLines.fill({});
  ParaFlags.VerifyDetails.clear();
  const std::optional<ParamSetRecord> other = ParamSetOfTable();
  if (!other) return -1;
  bool equal = true;
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    ParaFlags.VerifyLines[i] = LineOf(kGroups[i], AxisList(mask), *other);
    equal = equal && ParaFlags.VerifyLines[i].empty();
  }
  return equal ? 0 : 1;
}

std::string ParaVerifyText() {
  std::string text = Text(823) + "\n";
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    const std::string& line = ParaFlags.VerifyLines[i];
    if (!line.empty()) text += "<" + Text(kGroups[i].TitleId) + "> :" + line + "\n";
  }
  return text;
}

void ParaToPrintTable(ParamSetRecord& set) {
  for (int axis = 0; axis < kAxes; ++axis) {
    set.Actuator[axis] = JoinActuator(set.ActSize[axis], set.ActSpeed[axis], set.ActStroke[axis]);
  }
  ParaTable = ParaTableOf(set);
  for (int axis = 0; axis < kAxes; ++axis) {
    auto& column = ParaTable[static_cast<std::size_t>(axis)];
    if (AppState.DispMmUnit) {
      column[kRowStroke] = set.MmStrokeText[axis];
      column[kRowZone1] = set.MmZone1Text[axis];
      column[kRowZone2] = set.MmZone2Text[axis];
    }
    column[kPrintedSizeRow] = set.ActSize[axis];
    column[kPrintedSpeedRow] = set.ActSpeed[axis];
    column[kPrintedStrokeRow] = static_cast<double>(set.ActStroke[axis]);
  }
}

void ParaFromViewToTable() { ParaToPrintTable(ParamSet); }

}  // namespace tr7
