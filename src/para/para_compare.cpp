#include "para/para_compare.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/text_helpers.h"
#include "compare/compare.h"
#include "device/unit_conversion.h"
#include "forms/frm_parameta2.h"
#include "para/para_blocks.h"
#include "para/para_columns.h"
#include "para/para_fields.h"
#include "para/para_file_flow.h"
#include "para/para_flows.h"
#include "para/para_show.h"
#include "para/para_take_view.h"
#include "para/para_transfer_commands.h"
#include "para/para_value_text.h"
#include "para/para_verify.h"
#include "para/param_set.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 6000, kMsgAxis1 = 220, kMsgNone = 5335;
constexpr int kMsgNothingThere = 6566, kMsgLocked = 6567, kMsgFillFirst = 7835;
constexpr int kAllAxesMask = (1 << kAxes) - 1;

struct ParaSide {
  ParamSetRecord set;
  int axis_mask = 0;  ///< axes that it knows rows of
  bool Knows(const ParaCell& cell) const {
    return !IsAxisRow(cell.Row) || InMask(axis_mask, cell.Axis);
  }
};

using Sides = std::array<ParaSide, 2>;

int KeyOf(const ParaCell& cell) { return cell.Row * kAxes + cell.Axis; }
ParaCell CellOf(int key) { return {key / kAxes, key % kAxes}; }

/// The view into `ParamSet`. Axes that have come into use with the line get their columns first.
bool TakeScreen(FilledCheck& filled) {
  SettleParaColumns();
  const std::string words = TwoLines(7, 8);
  const bool never_filled = ParamSet == ParamSetRecord{};
  return filled.Holds(never_filled ? WithReason(words, Text(kMsgFillFirst)) : words) &&
         TakeParaView(1524, 1525);
}

bool FetchTable(CompareSource source, const std::string& path) {
  return source == CompareSource::Controller ? ParametersAreRead() : ParaFileIsRead(path);
}

bool Fetch(CompareSource source, const std::string& path, FilledCheck& filled, ParaSide& side) {
  if (source == CompareSource::Screen) {
    if (!TakeScreen(filled)) return false;
    side = {ParamSet, LiveAxisMask()};
    return true;
  }
  if (!FetchTable(source, path)) return false;
  side = {ParamSetOfTable().value_or(ParamSetRecord{}),
          source == CompareSource::Controller ? ParaOfCt.AxisMask : kAllAxesMask};
  return true;
}

/// A length in pulses, and in mm where positions are shown so.
std::string LengthText(const ParamSetRecord& set, const ParaCell& cell) {
  const auto mm = PulseToMm(set.AxisLead[cell.Axis], set.AxisPulse[cell.Axis],
                            ParaValue(set, cell.Row, cell.Axis));
  return AppState.DispMmUnit && mm ? " (" + FormatMm(*mm) + " mm)" : std::string();
}

std::string ValueText(const ParaSide& side, const ParaCell& cell) {
  if (!side.Knows(cell)) return Text(kMsgNone);
  const std::string text = ParaValueText(side.set, cell.Row, cell.Axis);
  const bool length = cell.Row == kRowStroke || cell.Row == kRowZone1 || cell.Row == kRowZone2;
  return length ? text + LengthText(side.set, cell) : text;
}

void AddRow(const Sides& sides, const ParaCell& cell, CompareList& list) {
  const auto& [here, there] = sides;
  const bool differs =
      !here.Knows(cell) || !there.Knows(cell) || !SameParaCell(here.set, there.set, cell);
  if (!list.Counts(differs)) return;
  const std::string axis = IsAxisRow(cell.Row) ? Text(MsgId::At(kMsgAxis1, cell.Axis)) : "";
  list.Add({KeyOf(cell), ParaRowName(cell.Row), axis, ValueText(here, cell), ValueText(there, cell),
            differs});
}

void Rows(const Sides& sides, CompareList& list) {
  const AxisList live(LiveAxisMask()), first_alone(1);
  for (int row = 1; row <= kParaRows; ++row) {
    for (const int axis : IsAxisRow(row) ? live : first_alone) AddRow(sides, {row, axis}, list);
  }
}

/// Why the view does not take the cell; nothing: it does.
std::optional<MsgId> Refusal(const ParaSide& there, const ParaCell& cell) {
  if (!there.Knows(cell)) return MsgId(kMsgNothingThere);
  if (cell.Row >= kFirstSpRow && !frmParameta2.chkTokuParaChange.Value) return MsgId(kMsgLocked);
  return std::nullopt;
}

void TakeCell(const ParamSetRecord& there, const ParaCell& cell) {
  if (cell.Row != kRowActuator) {
    SetParaValue(ParamSet, cell.Row, cell.Axis, ParaValue(there, cell.Row, cell.Axis));
    return;
  }
  ParamSet.Actuator[cell.Axis] = there.Actuator[cell.Axis];
  CutActuator(ParamSet, cell.Axis);
}

/// What is taken stands in the view as after opening a file, but counts as changed.
std::vector<CompareRefusal> Take(Sides& sides, const std::vector<int>& keys) {
  std::vector<CompareRefusal> refusals;
  for (const int key : keys) {
    const ParaCell cell = CellOf(key);
    if (const auto reason = Refusal(sides[kThere], cell)) {
      refusals.push_back({key, *reason});
    } else {
      TakeCell(sides[kThere].set, cell);
    }
  }
  sides[kHere].set = ParamSet;
  ParametaHyoji();
  return refusals;
}

}  // namespace

void CompareParameters() {
  FilledCheck filled;
  Sides sides;
  const auto fetch = [&](CompareSide side, CompareSource source, const std::string& path) {
    return Fetch(source, path, filled, sides[side]);
  };
  ShowCompare({kMsgTitle, kParaDataFile, fetch, [&](CompareList& list) { Rows(sides, list); },
               [&](const std::vector<int>& keys) { return Take(sides, keys); }});
}

}  // namespace tr7
