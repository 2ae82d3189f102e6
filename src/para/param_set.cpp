#include "para/param_set.h"

#include <cmath>
#include <limits>
#include <variant>

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "state/axes_in_use.h"

namespace tr7 {

ParamSetRecord ParamSet;
ParaTableRecord ParaTable;
ParaFlagsRecord ParaFlags;

namespace {

using Set = ParamSetRecord;
using RowField =
    std::variant<std::monostate, Set::PerAxis<double> Set::*, Set::PerAxis<std::int16_t> Set::*,
                 Set::PerAxis<std::int32_t> Set::*, std::int16_t Set::*>;

/// Where each row lives, by row number. The device text has no number.
const std::array<RowField, kParaRows + 1> kFields = {
    std::monostate{},   &Set::HomeOffset, &Set::HomePush,   &Set::HomeVel,    &Set::HomeOfsVel,
    &Set::HomePushVel,  &Set::HomeSeq,    &Set::AxisStroke, &Set::AxisLead,   &Set::AxisPulse,
    &Set::JogVel,       &Set::AutoDrive,  &Set::AxisType,   std::monostate{}, &Set::PgFunction,
    &Set::PgAlarm,      &Set::HomeOut,    &Set::GrpEnable,  &Set::SmTimeout,  &Set::SmTimer,
    &Set::ZoneEnable,   &Set::Zone1,      &Set::Zone2,      &Set::InPWidth,   &Set::HoldTime,
    &Set::AutoStartPrg, &Set::OneAxis,    &Set::AutoHome,   &Set::PgTimer,    &Set::LsSearchTimer,
    &Set::SoftLimit,    &Set::EmgLogic,   &Set::Alm1Clear,  &Set::PosPrg,     &Set::PputWrite};

const RowField& FieldOf(int row) { return kFields.at(row); }

bool Store(double& slot, double value) {
  if (!std::isfinite(value)) return false;
  slot = value;
  return true;
}

template <typename Whole>
bool Store(Whole& slot, double value) {
  const double whole = std::nearbyint(value);
  using Limits = std::numeric_limits<Whole>;
  if (!(whole >= Limits::min() && whole <= Limits::max())) return false;
  slot = static_cast<Whole>(whole);
  return true;
}

/// Calls `use` with the slot of this row and axis.
template <typename SetRef, typename Use>
void WithSlot(SetRef& set, int row, int axis, Use use) {
  std::visit(
      [&](auto field) {
        using Field = decltype(field);
        if constexpr (std::is_same_v<Field, std::int16_t Set::*>) {
          use(set.*field);
        } else if constexpr (!std::is_same_v<Field, std::monostate>) {
          use((set.*field)[axis]);
        }
      },
      FieldOf(row));
}

bool NumberOf(const Variant& item, double& value) {
  value = item.Number();
  if (!item.IsText()) return true;
  SeqReader reader{std::string(item.Text())};
  return reader.AtEnd() || (reader.ReadNumber(value) && reader.AtEnd());
}

bool TakeItem(const Variant& item, int row, int axis, ParamSetRecord& set) {
  if (row == kRowActuator) {
    set.Actuator[axis] = TextOf(item);
    CutActuator(set, axis);
    return true;
  }
  double value = 0;
  return NumberOf(item, value) && SetParaValue(set, row, axis, value);
}

/// `ParaTable` into `set`, up to the first row with an item that does not fit: its number, or 0.
int TakeRows(ParamSetRecord& set) {
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) {
      const Variant& item = ParaTable[axis][row];
      if (!TakeItem(item, row, axis, set)) return row;
    }
  }
  return 0;
}

/// Characters `from` (from 0) to `from + count` of a text.
std::string Characters(const std::string& text, int from, int count) {
  return LeftChars(text.substr(LeftChars(text, from).size()), count);
}

}  // namespace

bool IsAxisRow(int row) {
  return row == kRowActuator || !std::holds_alternative<std::int16_t Set::*>(FieldOf(row));
}

double ParaValue(const ParamSetRecord& set, int row, int axis) {
  double value = 0;
  WithSlot(set, row, axis, [&](const auto& slot) { value = slot; });
  return value;
}

bool SetParaValue(ParamSetRecord& set, int row, int axis, double value) {
  bool stored = false;
  WithSlot(set, row, axis, [&](auto& slot) { stored = Store(slot, value); });
  return stored;
}

void CutActuator(ParamSetRecord& set, int axis) {
  const std::string& text = set.Actuator[axis];
  const bool long_size = CharCount(text) == 7;
  const int size = long_size ? 3 : 2;
  set.ActSize[axis] = (long_size ? "" : " ") + LeftChars(text, size);
  set.ActSpeed[axis] = Trim(Characters(text, size, 1));
  Store(set.ActStroke[axis], Val(Characters(text, size + 1, 3)));
}

std::string JoinActuator(const std::string& size, const std::string& speed, int stroke) {
  return size + speed + DecPad(stroke, 3);
}

void ParaTableRecord::Clear() {
  for (auto& column : cells_) column.fill(std::string());
}

int TakeParamTable() {
  ParamSetRecord taken = ParamSet;
  if (TakeRows(taken) != 0) return 1;
  ParamSet = taken;
  return 0;
}

std::optional<ParamSetRecord> ParamSetOfTable() {
  ParamSetRecord set;
  return TakeRows(set) == 0 ? std::optional(set) : std::nullopt;
}

int RefusedParaRow() {
  ParamSetRecord scratch;
  return TakeRows(scratch);
}

ParaTableRecord ParaTableOf(const ParamSetRecord& set) {
  ParaTableRecord table;
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = 0; axis < kAxes; ++axis) {
      Variant& item = table[axis][row];
      if (row == kRowActuator) {
        item = set.Actuator[axis];
      } else {
        item = axis == 0 || IsAxisRow(row) ? ParaValue(set, row, axis) : 0.0;
      }
    }
  }
  return table;
}

bool IsLiveAxis(int axis) { return InMask(LiveAxisMask(), axis); }

int LiveAxisMask() {
  return ParaFlags.ShownAxisCount > 0 ? (1 << ParaFlags.ShownAxisCount) - 1 : AxesInUseMask();
}

}  // namespace tr7
