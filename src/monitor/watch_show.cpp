#include "monitor/watch_show.h"

#include <array>
#include <string>

#include "link/monitor_commands.h"
#include "monitor/io_state.h"
#include "state/text.h"

namespace tr7 {
namespace {

enum WatchColumn : int { kProgram, kNumber, kValue };
constexpr int kProgramWidth = 900, kNumberWidth = 900, kValueWidth = 1200;

void EndBatch(WatchKind kind) {
  Grid& grid = PaneOf(kind).List;
  grid.Redraw = true;
  grid.Touch();
}

TusinOutcome ReadItem(WatchKind kind, WatchItem& item) {
  switch (kind) {
    case WatchKind::Flag:
      return ReadFlagFromCt(item.program, item.number, item.value);
    case WatchKind::Hensu:
      return ReadHensuFromCt(item.program, item.number, item.value);
    default:
      return ReadPosHensuFromCt(item.program, item.number, item.value);
  }
}

/// The row may be another one by the time that the reply is there.
void TakeItem(WatchKind kind, std::size_t row, const WatchItem& read) {
  auto& list = WatchLists[kind];
  if (row >= list.size() || !list[row].IsSame(read)) return;
  list[row].value = read.value;
  Grid& grid = PaneOf(kind).List;
  const std::string text = WatchValueText(kind, read);
  const int grid_row = static_cast<int>(row) + 1;
  if (grid.Text(grid_row, kValue) != text) grid.SetText(grid_row, kValue, text);
}

TusinOutcome RefreshList(WatchKind kind, bool (*goes_on)()) {
  for (std::size_t row = 0; row < WatchLists[kind].size(); ++row) {
    if (frmIOCheckFG.Watched.chkEditItem.Value) return TusinOutcome::Good;
    if (!goes_on()) return TusinOutcome::Withdrawn;
    WatchItem item = WatchLists[kind][row];
    const TusinOutcome outcome = ReadItem(kind, item);
    if (outcome != TusinOutcome::Good) return outcome;
    TakeItem(kind, row, item);
  }
  return TusinOutcome::Good;
}

}  // namespace

WatchPane& PaneOf(WatchKind kind) {
  WatchPage& f = frmIOCheckFG.Watched;
  return kind == WatchKind::Flag    ? f.Flags
         : kind == WatchKind::Hensu ? f.Variables
                                    : f.PosVariables;
}

bool WatchListIsRead(WatchKind kind) {
  return PaneOf(kind).chkRead.Value && !frmIOCheckFG.Watched.chkEditItem.Value;
}

void FlagFG_HighSyoriEnd() { EndBatch(WatchKind::Flag); }
void HensuFG_HighSyoriEnd() { EndBatch(WatchKind::Hensu); }
void PosHensuFG_HighSyoriEnd() { EndBatch(WatchKind::PosHensu); }

void ShowWatchList(WatchKind kind) {
  constexpr std::array kEnds{FlagFG_HighSyoriEnd, HensuFG_HighSyoriEnd, PosHensuFG_HighSyoriEnd};
  const auto& list = WatchLists[kind];
  Grid& grid = PaneOf(kind).List;
  grid.Redraw = false;
  grid.SetRows(1 + static_cast<int>(list.size()));
  int row = 0;
  for (const WatchItem& item : list) {
    ++row;
    grid.SetText(row, kProgram, WatchProgramText(item));
    grid.SetText(row, kNumber, WatchNumberText(kind, item));
    grid.SetText(row, kValue, WatchValueText(kind, item));
  }
  kEnds[static_cast<std::size_t>(kind)]();
}

TusinOutcome RefreshWatchLists(bool (*goes_on)()) {
  for (const WatchKind kind : kWatchKinds) {
    if (!PaneOf(kind).chkRead.Value) continue;
    const TusinOutcome outcome = RefreshList(kind, goes_on);
    if (outcome != TusinOutcome::Good) return outcome;
  }
  return TusinOutcome::Good;
}

void ForgetShownWatchValues() {
  ForgetWatchValues();
  for (const WatchKind kind : kWatchKinds) ShowWatchList(kind);
}

void TouchWatchLists() {
  for (const WatchKind kind : kWatchKinds) PaneOf(kind).List.Touch();
}

void ShowWatchTitles() {
  constexpr std::array<std::array<MsgId, 3>, 3> kTitles{
      {{741, 742, 743}, {751, 752, 753}, {751, 7328, 753}}};
  for (const WatchKind kind : kWatchKinds) {
    Grid& grid = PaneOf(kind).List;
    const auto& titles = kTitles[static_cast<std::size_t>(kind)];
    for (int col = 0; col < 3; ++col) {
      grid.SetText(0, col, Text(titles[static_cast<std::size_t>(col)]));
    }
    grid.SetColWidth(kProgram, kProgramWidth);
    grid.SetColWidth(kNumber, kNumberWidth);
    grid.SetColWidth(kValue, kValueWidth);
    grid.SetColAlign(kProgram, ColAlign::Left);
    grid.SetColAlign(kNumber, ColAlign::Left);
    grid.SetColAlign(kValue, kind == WatchKind::Flag ? ColAlign::Left : ColAlign::Right);
    grid.FitsView = true;
  }
}

void WireWatchGrids() {
  for (const WatchKind kind : kWatchKinds) {
    Grid& grid = PaneOf(kind).List;
    grid.CanEdit = [](int, int) { return false; };
    grid.WhenEmpty = 7339;
    grid.IsUnused = [kind](int row, int col) {
      return row > 0 && col == kValue && (IoValuesAreOld() || !WatchListIsRead(kind));
    };
  }
  Grid& flags = PaneOf(WatchKind::Flag).List;
  flags.LampOf = [&flags](int row, int col) {
    if (row == 0 || col != kValue || flags.Text(row, col) == "X") return CellLamp::None;
    return flags.Text(row, col) == "O" ? CellLamp::On : CellLamp::Off;
  };
}

}  // namespace tr7
