#include "posi/field_range.h"

#include <cmath>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "posi/posi_table.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

bool Within(double value, double low, double high) { return value >= low && value <= high; }

/// The last pulse of a stroke may lie a fraction of 0.001 mm above `MaxMm`, which is cut, while
/// its text is rounded. What the table itself shows for that pulse is no bad value.
bool IsTextOfLastPulse(int axis, double mm) {
  const DevSettingRecord& device = DevSetting[axis];
  const auto last = PulseToMm(device.Lead, device.Ppr, AppState.MaxPulse[axis]);
  return last && mm == Val(FormatMm(*last));
}

bool LengthInRange(int axis, double value) {
  if (!AppState.DispMmUnit) return Within(value, 0, AppState.MaxPulse[axis]);
  return Within(value, 0, AppState.MaxMm[axis]) || IsTextOfLastPulse(axis, value);
}

}  // namespace

bool FieldInRange(int col, double value) {
  switch (col) {
    case kItpl:
      return Within(value, 0, 1);
    case kOut:
      return Within(value, 0, 15);
    case kSm:
      return Within(value, 0, 20);
    default:
      break;
  }
  const int axis = AxisOfColumn(col);
  switch (FieldOfColumn(col)) {
    case kVel:
      return Within(std::trunc(value), 1, SpeedLimit(axis));
    case kAcc:
      return Within(value, 1, 200);
    case kWay:
      return Within(value, 0, 3);
    case kPosi:
      return LengthInRange(axis, value);
    case kPf:
      return value == 0 || Within(value, 20, 70);
    default:
      return Within(value, 0, 99);
  }
}

double StoredAcc(const std::string& cell) { return std::nearbyint(Val(cell) / 10); }

bool CellInRange(int col, const std::string& text) {
  if (text.find_first_not_of(' ') == std::string::npos) return false;
  const bool acc = AxisOfColumn(col) >= 0 && FieldOfColumn(col) == kAcc;
  return FieldInRange(col, acc ? StoredAcc(text) : Val(text));
}

}  // namespace tr7
