#include "monitor/watch_view.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/text_helpers.h"
#include "monitor/plot_record.h"
#include "monitor/watch_lists.h"
#include "monitor/watch_show.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kBadHensu = 1037, kBadFlag = 1038, kListFull = 7326, kEdit = 1040, kRestart = 1041;

OptionGroup<2>* ScopeOf(WatchKind kind) {
  WatchPage& f = frmIOCheckFG.Watched;
  if (kind == WatchKind::PosHensu) return nullptr;
  return kind == WatchKind::Flag ? &f.optFlag : &f.optHensu;
}

bool IsGlobal(WatchKind kind) {
  const OptionGroup<2>* scope = ScopeOf(kind);
  return scope && scope->Chosen() == 0;
}

/// Index of the selected row in the list; -1: none is.
int SelectedRow(WatchKind kind) {
  const Grid& grid = PaneOf(kind).List;
  return grid.Row >= 1 && grid.Row < grid.Rows() ? grid.Row - 1 : -1;
}

/// What the fields name; nothing after the user has been told.
std::optional<WatchItem> TakeFields(WatchKind kind) {
  const WatchPane& pane = PaneOf(kind);
  const auto item = WatchItemOf(kind, IsGlobal(kind), pane.txtProgram.Text, pane.txtNumber.Text);
  if (!item) Tell(kind == WatchKind::Flag ? MsgId(kBadFlag) : MsgId(kBadHensu));
  return item;
}

/// A changed list is kept, shown, and known to the plot.
void Changed(WatchKind kind, int select) {
  SaveWatchList(kind);
  ShowWatchList(kind);
  Grid& grid = PaneOf(kind).List;
  const int row = std::min(select + 1, grid.Rows() - 1);
  grid.SelectCell(row, 0);
  FollowPlotItems();
  ShowWatchButtons();
}

void Add(WatchKind kind) {
  const auto item = TakeFields(kind);
  if (!item) return;
  auto& list = WatchLists[kind];
  if (list.size() >= kMostWatched) {
    return TellInStatusPanel(Text(kListFull, std::to_string(kMostWatched)));
  }
  list.push_back(*item);
  Changed(kind, static_cast<int>(list.size()) - 1);
}

void Change(WatchKind kind) {
  const int row = SelectedRow(kind);
  if (row < 0) return;
  const auto item = TakeFields(kind);
  if (!item) return;
  WatchLists[kind][static_cast<std::size_t>(row)] = *item;
  Changed(kind, row);
}

void Delete(WatchKind kind) {
  const int row = SelectedRow(kind);
  if (row < 0) return;
  auto& list = WatchLists[kind];
  list.erase(list.begin() + row);
  Changed(kind, row);
}

void Move(WatchKind kind, int step) {
  auto& list = WatchLists[kind];
  const int row = SelectedRow(kind), other = row + step;
  if (row < 0 || other < 0 || other >= static_cast<int>(list.size())) return;
  std::swap(list[static_cast<std::size_t>(row)], list[static_cast<std::size_t>(other)]);
  Changed(kind, other);
}

/// A common item belongs to no program.
void ScopeChosen(WatchKind kind) {
  WatchPane& pane = PaneOf(kind);
  if (IsGlobal(kind)) pane.txtProgram.Text.clear();
  ShowWatchButtons();
}

/// The row's item stands in the fields, to be changed.
void RowChosen(WatchKind kind) {
  const int row = SelectedRow(kind);
  if (row >= 0) {
    const WatchItem& item = WatchLists[kind][static_cast<std::size_t>(row)];
    WatchPane& pane = PaneOf(kind);
    if (OptionGroup<2>* scope = ScopeOf(kind)) (*scope)[item.program == 0 ? 0 : 1].Choose();
    pane.txtProgram.Text = item.program == 0 ? "" : std::to_string(item.program);
    pane.txtNumber.Text = std::to_string(item.number);
  }
  ShowWatchButtons();
}

void Couple(TextBox& field, UpDown& spin) {
  spin.Change = [&field, &spin] { field.Text = std::to_string(spin.Value); };
  field.Change = [&field, &spin] {
    const double value = Val(field.Text);
    if (value >= spin.Min && value <= spin.Max) spin.Value = static_cast<int>(value);
  };
}

void InstallPane(WatchKind kind) {
  WatchPane& pane = PaneOf(kind);
  Couple(pane.txtProgram, pane.updProgram);
  Couple(pane.txtNumber, pane.updNumber);
  pane.txtNumber.Enter = [kind] {
    if (PaneOf(kind).cmdAdd.Enabled) Add(kind);
  };
  pane.cmdAdd.Click = [kind] { Add(kind); };
  pane.cmdChange.Click = [kind] { Change(kind); };
  pane.cmdDelete.Click = [kind] { Delete(kind); };
  pane.cmdUp.Click = [kind] { Move(kind, -1); };
  pane.cmdDown.Click = [kind] { Move(kind, 1); };
  pane.List.SelChange = [kind] { RowChosen(kind); };
  if (OptionGroup<2>* scope = ScopeOf(kind)) {
    for (OptionButton& option : *scope) option.Click = [kind] { ScopeChosen(kind); };
  }
}

void ShowPaneButtons(WatchKind kind, bool edits) {
  WatchPane& pane = PaneOf(kind);
  const int row = SelectedRow(kind), rows = static_cast<int>(WatchLists[kind].size());
  pane.cmdAdd.Enabled = edits;
  pane.cmdDelete.Enabled = pane.cmdChange.Enabled = edits && row >= 0;
  pane.cmdUp.Enabled = edits && row > 0;
  pane.cmdDown.Enabled = edits && row >= 0 && row + 1 < rows;
  for (Control* field :
       {static_cast<Control*>(&pane.txtNumber), static_cast<Control*>(&pane.updNumber)}) {
    field->Enabled = edits;
  }
  pane.txtProgram.Enabled = pane.updProgram.Enabled = edits && !IsGlobal(kind);
  if (OptionGroup<2>* scope = ScopeOf(kind)) {
    for (OptionButton& option : *scope) option.Enabled = edits;
  }
}

}  // namespace

void ShowWatchButtons() {
  WatchPage& f = frmIOCheckFG.Watched;
  const bool edits = f.chkEditItem.Value && AppState.CommandsOffDepth == 0;
  f.chkEditItem.Caption = Text(f.chkEditItem.Value ? MsgId(kRestart) : MsgId(kEdit));
  for (const WatchKind kind : kWatchKinds) ShowPaneButtons(kind, edits);
}

void LoadWatchPage() {
  WatchPage& f = frmIOCheckFG.Watched;
  f.chkEditItem.Value = false;
  f.optFlag[0].Choose();
  f.optHensu[0].Choose();
  LoadWatchLists();
  ShowWatchTitles();
  for (const WatchKind kind : kWatchKinds) {
    PaneOf(kind).List.Row = 0;
    ShowWatchList(kind);
  }
  ShowWatchButtons();
}

void InstallWatchPage() {
  WireWatchGrids();
  for (const WatchKind kind : kWatchKinds) InstallPane(kind);
  frmIOCheckFG.Watched.chkEditItem.Click = ShowWatchButtons;
}

}  // namespace tr7
