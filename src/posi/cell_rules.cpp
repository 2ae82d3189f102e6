#include "posi/cell_rules.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "posi/field_range.h"
#include "posi/posi_format.h"
#include "posi/posi_table.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

using Result = std::optional<AcceptedCell>;

constexpr double kAccLow = 10, kAccHigh = 2000, kAccStep = 10;  // ms

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }

/// Without blanks and control characters at both ends.
std::string_view Stripped(std::string_view text) {
  const auto surplus = [](char c) { return c == ' ' || IsControl(c); };
  while (!text.empty() && surplus(text.front())) text.remove_prefix(1);
  while (!text.empty() && surplus(text.back())) text.remove_suffix(1);
  return text;
}

/// A sign, digits, a point, digits: what `Val` reads to its end. Blanks may stand anywhere.
bool IsNumber(std::string_view text) {
  bool begun = false, point = false, digit = false;
  for (const char c : text) {
    if (c == ' ') continue;
    if (c >= '0' && c <= '9') {
      digit = true;
    } else if (c == '.' && !point) {
      point = true;
    } else if ((c != '+' && c != '-') || begun) {
      return false;
    }
    begun = true;
  }
  return digit;
}

bool IsWhole(double value) { return value == std::trunc(value); }

Result AcceptIf(bool good, std::string_view text) {
  return good ? Result({std::string(text), {}}) : std::nullopt;
}

/// Only the integer part of a speed counts.
Result SpeedRule(int col, std::string_view text) {
  return AcceptIf(IsNumber(text) && FieldInRange(col, std::trunc(Val(text))), text);
}

Result AccelerationRule(int, std::string_view text) {
  const double value = Val(text);
  if (!IsNumber(text) || value < kAccLow || value > kAccHigh) return std::nullopt;
  return AcceptedCell{PlainDecimal(std::trunc(value / kAccStep) * kAccStep), {}};
}

Result CodeRule(int col, std::string_view text) {
  const double value = Val(text);
  return AcceptIf(text.empty() || (IsNumber(text) && IsWhole(value) && FieldInRange(col, value)),
                  text);
}

Result CommentRule(int, std::string_view text) {
  for (const char c : text) {
    if (c == '"' || IsControl(c)) return std::nullopt;
  }
  return AcceptedCell{std::string(Stripped(LeftChars(text, kCommentChars))), {}};
}

Result PulseRule(int axis, double pulses) {
  const DevSettingRecord& device = DevSetting[axis];
  const auto mm = PulseToMm(device.Lead, device.Ppr, pulses);
  if (!mm || !IsWhole(pulses) || pulses < 0 || pulses > AppState.MaxPulse[axis]) {
    return std::nullopt;
  }
  // Cut just as `MaxMm` is, so that the last pulse never fails by the noise of its own conversion.
  if (ToFixed4(std::trunc(*mm * 1000) / 1000) > AppState.MaxMm[axis]) return std::nullopt;
  return AcceptedCell{PlainDecimal(pulses), AcceptedCell::Length{pulses, CutComputedMm(*mm)}};
}

Result MmRule(int axis, std::string_view number) {
  const DevSettingRecord& device = DevSetting[axis];
  const double typed = CutMmText(number);
  if (typed < 0 || typed > AppState.MaxMm[axis]) return std::nullopt;
  const auto mm = SnapMmToPulse(device.Lead, SnapMode(), device.Ppr, typed);
  const auto pulses = mm ? MmToPulse(device.Lead, device.Ppr, *mm) : std::nullopt;
  if (!pulses) return std::nullopt;
  return AcceptedCell{FormatMm(*mm), AcceptedCell::Length{*pulses, *mm}};
}

Result LengthRule(int col, std::string_view text, bool program_mode) {
  const int axis = AxisOfColumn(col);
  const WayAndNumber posi = program_mode ? SplitPosiText(text) : WayAndNumber{1, std::string(text)};
  if (!IsNumber(posi.number)) return std::nullopt;
  Result cell = AppState.DispMmUnit ? MmRule(axis, posi.number) : PulseRule(axis, Val(posi.number));
  if (cell) cell->text = PosiLengthText(cell->text, posi.way, program_mode);
  return cell;
}

Result PosModeLengthRule(int col, std::string_view text) { return LengthRule(col, text, false); }

using Rule = Result (*)(int col, std::string_view text);

/// By field of an axis, VEL to PS.
constexpr std::array<Rule, 6> kAxisRules{SpeedRule,         AccelerationRule, CodeRule,
                                         PosModeLengthRule, CodeRule,         CodeRule};

Rule RuleOfColumn(int col) {
  if (col == kComment) return CommentRule;
  if (AxisOfColumn(col) < 0) return CodeRule;
  return kAxisRules[FieldOfColumn(col) - 1];
}

void Mirror(int row, int axis, const AcceptedCell::Length& length) {
  const int index = row - 1;
  if (index < 0 || index >= kPosiSlots) return;
  PosiTable.PosiPulse[axis][index] = static_cast<std::int32_t>(length.pulses);
  PosiTable.PosiMm[axis][index] = length.mm;
}

int SetData(int row, int col, std::string& text, bool program_mode) {
  const Result cell = ApplyCellRule(col, text, program_mode);
  if (!cell) return 1;
  if (cell->length) Mirror(row, AxisOfColumn(col), *cell->length);
  text = cell->text;
  return 0;
}

}  // namespace

Result ApplyCellRule(int col, std::string_view typed, bool program_mode) {
  if (col < 1 || col >= kPosiColumns) return std::nullopt;
  const std::string_view text = Stripped(typed);
  if (!program_mode || col == kComment) return RuleOfColumn(col)(col, text);
  const bool length = AxisOfColumn(col) >= 0 && FieldOfColumn(col) == kPosi;
  return length ? LengthRule(col, text, true) : std::nullopt;
}

bool RuleChanged(int col, std::string_view typed, std::string_view shown) {
  if (col == kComment) return CharCount(Stripped(typed)) > CharCount(shown);
  if (!AppState.CtMode) return Val(typed) != Val(shown);
  return Val(SplitPosiText(Stripped(typed)).number) != Val(SplitPosiText(shown).number);
}

int SetDataForFlex(int row, int col, std::string& text) { return SetData(row, col, text, false); }

int SetDataForFlexAtPrgMode(int row, int col, std::string& text) {
  return SetData(row, col, text, true);
}

int SetCellData(int row, int col, std::string& text) {
  return AppState.CtMode ? SetDataForFlexAtPrgMode(row, col, text) : SetDataForFlex(row, col, text);
}

}  // namespace tr7
