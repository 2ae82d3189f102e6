#include "monitor/io_show.h"

#include <array>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_main.h"
#include "monitor/io_names.h"
#include "monitor/io_points.h"
#include "monitor/io_state.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr const char *kOn = "O", *kOff = "-";
constexpr int kForced = 7307, kWaiting = 7308, kFlipTip = 7309, kNameTip = 7306;
constexpr int kOverrideMsg = 7312, kPace = 7315, kLinePace = 7316, kAge = 7317, kTrueAt = 7318,
              kNotRunning = 7319, kFirstValues = 7320, kKnownAt = 7338;
constexpr int kAxis1 = 220;
constexpr int kNameWidth = 1200, kStateWidth = 750, kOwnNameWidth = 2400, kForcedWidth = 1000;
constexpr std::int64_t kMarkedUs = 1'000'000;

void Put(Grid& grid, int row, int col, const std::string& text) {
  if (grid.Text(row, col) != text) grid.SetText(row, col, text);
}

template <std::size_t rows, typename Names>
void ShowNames(Grid& grid, const std::array<IoPointRow, rows>& points, const Names& own) {
  grid.SetColWidth(kPointName, kNameWidth);
  grid.SetColWidth(kPointState, kStateWidth);
  grid.SetColWidth(kPointOwnName, kOwnNameWidth);
  grid.FitsView = true;
  grid.SetColAlign(kPointState, ColAlign::Left);
  grid.SetColAlign(kPointOwnName, ColAlign::Left);
  for (std::size_t row = 0; row < rows; ++row) {
    Put(grid, static_cast<int>(row), kPointName, PointName(points[row]));
    Put(grid, static_cast<int>(row), kPointOwnName, own[row]);
  }
}

template <std::size_t rows>
void ShowStates(Grid& grid, const std::array<IoPointRow, rows>& points, const IoBits& bits) {
  for (std::size_t row = 0; row < rows; ++row) {
    Put(grid, static_cast<int>(row), kPointState, bits[points[row].Point()] ? kOn : kOff);
  }
  grid.Touch();  // the marks of what changed
}

std::string ForcedText(int point) {
  if (IoMonitor.IoOutFlip[point]) return Text(kWaiting);
  return IoMonitor.Forced[point] ? Text(kForced) : std::string();
}

void ShowForced() {
  int row = 0;
  for (const IoPointRow& point : OutputPoints()) {
    Put(frmIOCheckFG.Io.flgdOutput, row++, kPointForced, ForcedText(point.Point()));
  }
}

std::string Seconds(std::int64_t ms) {
  return PlainDecimal(RoundToOneDecimal(static_cast<double>(ms) / 1000.0));
}

std::string PaceText() {
  const Poll& ticks = IoMonitor.Ticks;
  if (!IoMonitor.IoMonOn) {
    return IoMonitor.Stale ? Text(kTrueAt, IoMonitor.TrueAt) : Text(kNotRunning);
  }
  if (!IoMonitor.Known) return Text(kFirstValues);
  if (IoValuesAreOld()) return NotRenewedText(IoMonitor.TrueAt);
  if (ticks.PaceMs() == 0) return Text(kKnownAt, IoMonitor.TrueAt);
  if (!ticks.IsLate()) return Text(kPace, Seconds(ticks.PaceMs()));
  const std::int64_t age = ticks.AgeMs();
  return age > 2 * ticks.PaceMs() ? Text(kAge, Seconds(age))
                                  : Text(kLinePace, Seconds(ticks.PaceMs()));
}

template <std::size_t rows>
void WireTable(Grid& grid, const std::array<IoPointRow, rows>& points,
               const std::array<std::int64_t, kIoPoints>& changed_us, MsgId state_tip) {
  grid.LampOf = [&grid](int row, int col) {
    if (col != kPointState || grid.Text(row, col).empty()) return CellLamp::None;
    return grid.Text(row, col) == kOn ? CellLamp::On : CellLamp::Off;
  };
  grid.IsMarked = [&grid, &points, &changed_us](int row, int col) {
    if (col == kPointForced) return !grid.Text(row, col).empty();
    const std::int64_t at = changed_us[points[static_cast<std::size_t>(row)].Point()];
    return col == kPointState && at != 0 && IoMonitor.IoMonOn &&
           doors.pump->NowUs() - at <= kMarkedUs;
  };
  grid.IsUnused = [](int, int col) { return col == kPointState && IoValuesAreOld(); };
  grid.CellToolTip = [state_tip](int, int col) {
    if (col == kPointOwnName) return Text(kNameTip);
    return col == kPointState && state_tip ? Text(state_tip) : std::string();
  };
  grid.CanEdit = [](int, int col) { return col == kPointOwnName; };
  grid.InputMethodOn = [](int col) { return col == kPointOwnName; };
  grid.MaxLength = [](int) { return kLongestIoName; };
}

}  // namespace

void ShowPointNames() {
  IoPage& f = frmIOCheckFG.Io;
  ShowNames(f.flgdInput, InputPoints(), IoNames.In);
  ShowNames(f.flgdOutput, OutputPoints(), IoNames.Out);
  f.flgdOutput.SetColWidth(kPointForced, kForcedWidth);
  f.flgdOutput.SetColAlign(kPointForced, ColAlign::Left);
  for (int axis = 0; axis < kAxes; ++axis) {
    f.lblAxis[axis].Caption = Text(MsgId::At(kAxis1, axis));
    f.lblAxis[axis].Visible = f.lblCurrentPos[axis].Visible =
        f.framPosition.Visible && !AppState.AxisMuko[axis];
  }
}

void IoStateHyoji2() {
  IoPage& f = frmIOCheckFG.Io;
  ShowStates(f.flgdInput, InputPoints(), IoMonitor.IoInBit);
  ShowStates(f.flgdOutput, OutputPoints(), IoMonitor.IoOutBit);
  ShowForced();
}

void AllLED_Off() {
  IoMonitor.IoInBit.fill(false);
  IoMonitor.IoOutBit.fill(false);
  IoMonitor.Forced.fill(false);
  IoMonitor.IoOutFlip.fill(false);
  IoStateHyoji2();
  for (Label& place : frmIOCheckFG.Io.lblCurrentPos) place.Caption = kOff;
}

void ShowIoPace() {
  frmIOCheckFG.lblPace.Caption = PaceText();
  for (Label& place : frmIOCheckFG.Io.lblCurrentPos) place.Enabled = !IoValuesAreOld();
}

void ShowOverride() {
  frmMain.sbStatusBar.Panels[kPanelOverride] =
      IoMonitor.OverrideOn ? Text(kOverrideMsg) : std::string();
}

void WirePointTables() {
  IoPage& f = frmIOCheckFG.Io;
  WireTable(f.flgdInput, InputPoints(), IoMonitor.InChangedUs, {});
  WireTable(f.flgdOutput, OutputPoints(), IoMonitor.OutChangedUs, kFlipTip);
  f.flgdInput.AcceptEdit = [](int row, int, std::string& text) {
    text = KeepInputName(row, text);
    return EditVerdict{};
  };
  f.flgdOutput.AcceptEdit = [](int row, int, std::string& text) {
    text = KeepOutputName(row, text);
    return EditVerdict{};
  };
}

}  // namespace tr7
