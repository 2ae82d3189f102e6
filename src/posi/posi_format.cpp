#include "posi/posi_format.h"

#include <cmath>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "posi/field_range.h"
#include "posi/posi_table.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

constexpr double kFillerVel = 30;
constexpr double kFillerAcc = 10;

/// A position as a number: millimetres with three decimals, where there are any, or pulses.
std::string LengthText(double pulses, double mm) {
  if (!AppState.DispMmUnit) return PlainDecimal(pulses);
  return std::isnan(mm) ? std::string() : FormatMm(mm);
}

std::string WithSign(const std::string& length, int way) {
  switch (way) {
    case 0:
      return "N";
    case 2:
      return "+" + length;
    case 3:
      return "-" + length;
    default:
      return length;
  }
}

/// Right-aligned where there is room. A sign in front of a metre and more leaves none, and then
/// the text stands as it is.
std::string Aligned(const std::string& text) {
  return CharCount(text) > kPosiTextWidth ? text : RightAlignText(text, kPosiTextWidth);
}

const Variant& Field(int col, int number) { return PosiTable.PosiRec[col][number]; }

std::string FillerText(int col, bool program_mode) {
  switch (FieldOfColumn(col)) {
    case kVel:
      return PlainDecimal(kFillerVel);
    case kAcc:
      return PlainDecimal(kFillerAcc * 10);
    case kPosi:
      return program_mode ? RightAlignText("N", kPosiTextWidth) : "0";
    default:
      return "0";
  }
}

}  // namespace

int WayOf(double stored) { return stored >= 0 && stored < 4 ? static_cast<int>(stored) : 1; }

std::string PosiCellText(int col, int number, bool program_mode) {
  if (col == kComment) return TextOf(Field(col, number));
  const int axis = AxisOfColumn(col);
  if (axis >= 0 && AppState.AxisMuko[axis]) return FillerText(col, program_mode);
  if (axis >= 0 && FieldOfColumn(col) == kPosi) {
    const int way = WayOf(ValueOf(Field(AxisBase(axis) + kWay, number)));
    return PosiLengthText(
        LengthText(PosiTable.PosiPulse[axis][number], PosiTable.PosiMm[axis][number]), way,
        program_mode);
  }
  const double value = ValueOf(Field(col, number));
  const bool acc = axis >= 0 && FieldOfColumn(col) == kAcc;
  const std::string text = PlainDecimal(acc ? value * 10 : value);
  return program_mode ? HiddenCellText(col, text) : text;
}

std::string HiddenCellText(int col, const std::string& text) {
  return CellInRange(col, text) ? text : std::string();
}

std::string PosiValueText(int col, double stored, double way, bool program_mode) {
  const int axis = AxisOfColumn(col);
  if (axis < 0) return PlainDecimal(stored);
  if (FieldOfColumn(col) == kAcc) return PlainDecimal(stored * 10);
  if (FieldOfColumn(col) != kPosi) return PlainDecimal(stored);
  const DevSettingRecord& device = DevSetting[axis];
  const double mm = PulseToMm(device.Lead, device.Ppr, stored).value_or(kNoMm);
  return PosiLengthText(LengthText(stored, mm), WayOf(way), program_mode);
}

std::string PosiPulseText(double stored, double way, bool program_mode) {
  return PosiLengthText(PlainDecimal(stored), WayOf(way), program_mode);
}

std::string PosiDefaultText(int col, bool program_mode) {
  const int axis = AxisOfColumn(col);
  if (col == kComment) return {};
  if (axis >= 0 && AppState.AxisMuko[axis]) {
    return FillerText(col, program_mode);
  }
  const std::string text = PosiValueText(col, PosiDefault(col), 0, program_mode);
  const bool hidden = program_mode && (axis < 0 || FieldOfColumn(col) != kPosi);
  return hidden ? HiddenCellText(col, text) : text;
}

WayAndNumber SplitPosiText(std::string_view text) {
  const std::string trimmed = Trim(text);
  const char sign = trimmed.empty() ? '\0' : trimmed[0];
  if (sign == 'N' || sign == 'n') return {0, "0"};
  if (sign != '+' && sign != '-') return {1, trimmed};
  const std::string number = Trim(std::string_view(trimmed).substr(1));
  return {sign == '+' ? 2 : 3, number.empty() ? "1" : number};
}

std::string PosiLengthText(const std::string& length, int way, bool program_mode) {
  if (length.empty() && way != 0) return {};  // a sign alone would stand for a move of 1
  if (program_mode) return Aligned(WithSign(length, way));
  return AppState.DispMmUnit ? Aligned(length) : length;
}

}  // namespace tr7
