#include "posi/posi_hint.h"

#include <utility>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgCommentRefuses = 6357;
constexpr int kMsgRounded = 6461;

std::string Range(const std::string& low, const std::string& high, const std::string& unit) {
  return Text(5240) + low + Text(5241) + high + unit;
}

std::string PosiRange(int axis) {
  const bool program = AppState.CtMode;
  if (!AppState.DispMmUnit) {
    return Range("0", std::to_string(AppState.MaxPulse[axis]), program ? Text(53) : "(pls)");
  }
  const DevSettingRecord& device = DevSetting[axis];
  const double mm = PulseToMm(device.Lead, device.Ppr, AppState.MaxPulse[axis]).value_or(0);
  return Range("0.000", RightAlignText(FormatMm(mm), 8), program ? Text(52) : "(mm)");
}

std::string AxisRange(int axis, int field) {
  switch (field) {
    case kVel:
      return Range("1", std::to_string(SpeedLimit(axis)), "(mm/sec)");
    case kAcc:
      return Range("10", "2000", "(msec)");
    case kWay:
      return Range("0", "3", Text(54));
    case kPosi:
      return PosiRange(axis);
    case kPf:
      return Range("0 , 20", "70", "(%)");
    default:
      return Range("0", "99", "(%)");
  }
}

}  // namespace

std::string PosiRangeText(int col) {
  const int axis = AxisOfColumn(col);
  if (axis >= 0) return AxisRange(axis, FieldOfColumn(col));
  switch (col) {
    case kItpl:
      return Range("0", "1", Text(55));
    case kOut:
      return Range("0", "15", Text(56));
    case kSm:
      return Range("0 , 1", "20", Text(57));
    default:
      return col == kComment ? Text(5242) : std::string();
  }
}

std::string PosiHint(int col) {
  if (col == 0) return {};
  if (col == kComment) return PosiRangeText(col);
  const int axis = AxisOfColumn(col);
  if (axis >= 0 && AppState.AxisMuko[axis]) return {};
  if (AppState.CtMode && (axis < 0 || FieldOfColumn(col) != kPosi)) return {};
  return PosiRangeText(col);
}

std::string RefusalText(int col) {
  return col == kComment ? Text(kMsgCommentRefuses) : PosiRangeText(col);
}

void TellRounded(const std::string& typed, const std::string& shown) {
  TellNote(Text(kMsgRounded, Trim(typed), Trim(shown)));
}

void TellNote(const std::string& note) {
  frmPosi.RoundedNote = note + "  ";
  TellInStatusPanel(frmPosi.RoundedNote + PosiHint(frmPosi.flgdData.Col));
}

void PosiHintHyoji() {
  const Grid& grid = frmPosi.flgdData;
  const bool body = grid.Row >= kPosiHeaderRows && grid.Row < grid.Rows();
  const std::string note = std::exchange(frmPosi.RoundedNote, std::string());
  TellInStatusPanel(note + (body ? PosiHint(grid.Col) : std::string()));
}

}  // namespace tr7
