#include "wire/wire_view.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_main.h"
#include "forms/frm_wire.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/views.h"
#include "wire/wire_export.h"
#include "wire/wire_rows.h"
#include "wire/wire_send.h"

namespace tr7 {
namespace {

struct ColumnRow {
  MsgId title;
  int width;  // twips
  ColAlign align;
};
constexpr std::array kColumns{
    ColumnRow{711, 700, ColAlign::Right},  ColumnRow{5400, 1250, ColAlign::Left},
    ColumnRow{7702, 900, ColAlign::Left},  ColumnRow{7703, 650, ColAlign::Right},
    ColumnRow{7704, 2200, ColAlign::Left}, ColumnRow{7705, -1, ColAlign::Left}};

constexpr std::array kWays{MsgId(7711), MsgId(5402), MsgId(7706)};
constexpr int kFilterPrompt = 7707, kFindPrompt = 7708, kFramePrompt = 7716, kShown = 7717,
              kNotFound = 7729, kClear = 7734;

/// A frame by hand has been warned of since the console was opened.
bool warned = false;

Grid& Rows() { return frmWire.flgdWire; }

/// The frame of a grid row; none where the record has let it go since the rows were counted.
std::optional<std::uint64_t> NumberOf(int row) {
  const auto index = static_cast<std::size_t>(row - 1);
  if (row < 1 || index >= WireRows.Shown.size()) return std::nullopt;
  const std::uint64_t number = WireRows.Shown[index];
  if (number < WireRows.Source().First() || number >= WireRows.Source().End()) return std::nullopt;
  return number;
}

std::string CellText(int row, int col) {
  const auto number = NumberOf(row);
  return number ? RowCell(WireRows.Source(), *number, static_cast<WireColumn>(col)) : "";
}

bool IsMarked(int row, int col) {
  if (col != kDirection && col != kWords) return false;
  const auto number = NumberOf(row);
  return number && IsFault(WireRows.Source(), *number);
}

/// The current row's words, for which its column may have no room.
void ShowWords() {
  constexpr int kMost = 300;
  const std::string words = CellText(Rows().Row, kWords);
  const bool cut = CharCount(words) > kMost;
  frmWire.lblWords.Caption = cut ? LeftChars(words, kMost) + " ..." : words;
}

void GoToRow(int row) {
  Rows().SelectCell(row, kWords);
  Rows().BringIntoSight(row);
}

/// Brings the rows up to date. Who stands on the last one stays on the last one; who looks at
/// another keeps it.
void ShowRows() {
  Grid& grid = Rows();
  const int last = grid.Rows() - 1;
  const bool follows = grid.Row == last && grid.RowSel == last;
  const int gone = WireRows.Follow();
  grid.SetRows(1 + static_cast<int>(WireRows.Shown.size()));
  if (follows) {
    GoToRow(grid.Rows() - 1);
  } else if (gone > 0) {
    grid.Row = std::max(grid.Row - gone, 1);
    grid.RowSel = std::max(grid.RowSel - gone, 1);
  }
  grid.WhenEmpty = WireRows.Source().Size() == 0 ? MsgId(7176) : MsgId(7178);
  grid.Touch();
  frmWire.lblCount.Caption =
      Text(kShown, std::to_string(WireRows.Shown.size()), std::to_string(WireRows.Source().Size()));
  ShowWords();
}

/// Another choice of rows: the frame that was looked at stays the current one where it is still
/// there.
void Refilter() {
  const auto current = NumberOf(Rows().Row);
  WireRows.Filter = {frmWire.txtFilter.Text,
                     static_cast<WireFilter::Way>(std::max(frmWire.comboDirection.ListIndex, 0)),
                     frmWire.chkHidePolls.Value};
  WireRows.Rebuild();
  Rows().SetRows(1 + static_cast<int>(WireRows.Shown.size()));
  ShowRows();
  const auto& shown = WireRows.Shown;
  if (!current || shown.empty()) return;
  const auto at = std::lower_bound(shown.begin(), shown.end(), *current);
  const auto row = static_cast<int>(at - shown.begin()) + 1;
  GoToRow(std::min(row, static_cast<int>(shown.size())));
}

void Pause() {
  if (frmWire.chkPause.Value) {
    WireRows.Held = FrameLog;
  } else {
    WireRows.Held.reset();
  }
  ShowRows();
}

void Find(bool backwards) {
  const std::string& text = frmWire.txtFind.Text;
  if (text.empty()) return doors.forms->SetFocus(frmWire.txtFind);
  ShowRows();
  const std::size_t rows = WireRows.Shown.size();
  // A row is one more than its index: the next index is the row's own number, the one before two
  // less.
  const auto row = static_cast<std::size_t>(Rows().Row);
  const auto found =
      rows == 0 ? std::nullopt : WireRows.Find(text, backwards ? row + rows - 2 : row, backwards);
  if (found) return GoToRow(static_cast<int>(*found) + 1);
  frmWire.lblCount.Caption = Text(kNotFound, text);
  doors.forms->Beep();
}

void Copy() {
  ShowRows();
  const auto [first, last] = std::minmax(Rows().Row, Rows().RowSel);
  if (first < 1 || !doors.clipboard) return;
  doors.clipboard->SetText(
      WireRowsAsText(static_cast<std::size_t>(first) - 1, static_cast<std::size_t>(last)));
}

void Save() {
  ShowRows();
  SaveWireRows();
}

void Clear() {
  if (!AskToLose(Text(kClear))) return;
  FrameLog.Clear();
  if (WireRows.Held) WireRows.Held->Clear();
  ShowRows();
}

void ShowButtons() {
  frmWire.cmdSend.Enabled = !AppState.Offline && AppState.CommandsOffDepth == 0;
}

void Send() {
  if (!frmWire.cmdSend.Enabled) return;
  const std::string words = SendByHand(Trim(frmWire.txtFrame.Text), warned);
  if (words.empty()) return;
  frmWire.lblReply.Caption = words;
  if (frmWire.Loaded) ShowRows();
}

/// Drawing waits for a moment: much may come in meanwhile.
void NoteFrame() {
  Timer& timer = frmWire.TimerWire;
  if (!timer.Enabled && !WireRows.Held) timer.Start();
}

void Load() {
  FrmWire& f = frmWire;
  warned = false;
  f.Edit.Copy = true;
  WireRows = WireRowsRecord{};
  f.txtFilter.Prompt = Text(kFilterPrompt);
  f.txtFind.Prompt = Text(kFindPrompt);
  f.txtFrame.Prompt = Text(kFramePrompt);
  f.comboDirection.Clear();
  for (const MsgId way : kWays) f.comboDirection.AddItem(Text(way), 0);
  f.comboDirection.ListIndex = 0;
  int col = 0;
  for (const ColumnRow& column : kColumns) {
    f.flgdWire.SetText(0, col, Text(column.title));
    f.flgdWire.SetColWidth(col, column.width);
    f.flgdWire.SetColAlign(col, column.align);
    ++col;
  }
  f.txtFilter.Text = f.txtFind.Text = f.txtFrame.Text = f.lblReply.Caption = "";
  f.chkHidePolls.Value = f.chkPause.Value = false;
  f.flgdWire.SetRows(1);
  ShowRows();
  ShowButtons();
  FrameLog.Noted = NoteFrame;
}

void Unload() {
  FrameLog.Noted = nullptr;
  frmWire.TimerWire.Stop();
  WireRows = WireRowsRecord{};
  frmWire.flgdWire.SetRows(1);
}

}  // namespace

void InstallWireView() {
  FrmWire& f = frmWire;
  f.Load = Load;
  f.Unload = Unload;
  f.OpenedBy = &frmMain.mnuViewWire;
  f.OnlineChanged = f.CmdMuko = f.CmdYuko = ShowButtons;
  f.flgdWire.BodyText = CellText;
  f.flgdWire.IsMarked = IsMarked;
  f.flgdWire.CanEdit = [](int, int) { return false; };
  f.flgdWire.CellToolTip = [](int row, int col) {
    return row > 0 && col == kWords ? CellText(row, col) : std::string();
  };
  f.flgdWire.SelChange = ShowWords;
  f.flgdWire.Copy = f.Commands.Copy = f.cmdCopy.Click = Copy;
  f.txtFilter.Change = f.comboDirection.Click = f.chkHidePolls.Click = Refilter;
  f.chkPause.Click = Pause;
  f.cmdFindNext.Click = f.txtFind.Enter = [] { Find(false); };
  f.cmdFindPrevious.Click = [] { Find(true); };
  f.cmdSend.Click = f.txtFrame.Enter = Send;
  f.cmdSave.Click = Save;
  f.cmdClear.Click = Clear;
  f.cmdClose.Click = [] { CloseView(frmWire, CloseReason::Code); };
  f.TimerWire.Tick = [] {
    frmWire.TimerWire.Stop();
    ShowRows();
  };
  frmMain.mnuViewWire.Click = [] { ShowOrBringToFront(frmWire); };
}

}  // namespace tr7
