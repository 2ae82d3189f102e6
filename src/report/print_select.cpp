#include "report/print_select.h"

#include <algorithm>
#include <array>

#include "base/text_helpers.h"
#include "forms/frm_print_select.h"
#include "para/para_file_flow.h"
#include "platform/doors.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_table.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgNoParaFile = 1821, kMsgNoPosiFile = 1822, kMsgBadRange = 1823;
constexpr int kMsgBadFile = 1824, kMsgPosiTitle = 7609, kMsgParaTitle = 683;
constexpr int kShown = 0, kFile = 1;

/// One kind's row of the dialogue.
struct Row {
  CheckBox& wanted;
  OptionGroup<2>& source;
  CommandButton& select;
  Label& file;
  std::string& path;
  const DataFile& kind;
  MsgId title, placeholder;

  bool FromFile() const { return source.Chosen() == kFile; }
  bool LacksFile() const { return wanted.Value && FromFile() && file.Caption == Text(placeholder); }
};

using Rows = std::array<Row, 2>;

Rows RowsOf(PrintChoice& choice) {
  FrmPrintSelect& f = frmPrintSelect;
  return {{{f.chkPrintPosi, f.optPrintPosi, f.cmdSelectPosiFile, f.lblPrintPosiFile,
            choice.PosiFile, kPosiDataFile, kMsgPosiTitle, kMsgNoPosiFile},
           {f.chkPrintPara, f.optPrintPara, f.cmdSelectParaFile, f.lblPrintParaFile,
            choice.ParaFile, kParaDataFile, kMsgParaTitle, kMsgNoParaFile}}};
}

PosiRange Loaded() {
  const PosiRange loaded = LoadedPosiRange();
  return loaded.first >= 1 && !loaded.IsEmpty() ? loaded : PosiRange{1, kPosiMaxNo};
}

/// Each row shows what its option asks for.
void ShowRows(const Rows& rows) {
  FrmPrintSelect& f = frmPrintSelect;
  for (const Row& row : rows) {
    for (OptionButton& option : row.source) option.Enabled = row.wanted.Value;
    row.select.Visible = row.file.Visible = row.FromFile();
    row.select.Enabled = row.wanted.Value;
  }
  const Row& posi = rows[0];
  for (Control* control : std::initializer_list<Control*>{
           &f.lblPrintStartPosi, &f.txtPrintStartPosi, &f.lblPrintEndPosi, &f.txtPrintEndPosi}) {
    control->Visible = !posi.FromFile();
    control->Enabled = posi.wanted.Value;
  }
  f.cmdPrintSet.Enabled = rows[0].wanted.Value || rows[1].wanted.Value;
}

void FillFirst(const Rows& rows) {
  FrmPrintSelect& f = frmPrintSelect;
  for (const Row& row : rows) {
    row.source[kShown].Choose();
    row.file.Caption = Text(row.placeholder);
    row.file.ToolTip.clear();
  }
  f.chkPrintPosi.Value = true;
  f.chkPrintPara.Value = false;
  f.txtPrintStartPosi.Text = std::to_string(Loaded().first);
  f.txtPrintEndPosi.Text = std::to_string(Loaded().last);
  ShowRows(rows);
}

void SelectFile(const Row& row) {
  const auto path = AskOpenPath(row.kind, row.title);
  if (!path || path->empty()) return;
  row.path = *path;
  row.file.Caption = FileTitle(*path);
  row.file.ToolTip = *path;
}

/// A number that there is no position of becomes `instead`.
void Correct(TextBox& box, int instead) {
  const double number = Val(box.Text);
  if (number < 1 || number > kPosiMaxNo) box.Text = std::to_string(instead);
}

/// The typed range, also where no position is loaded; empty where it is none.
PosiRange TypedRange() {
  const auto first = static_cast<int>(Val(frmPrintSelect.txtPrintStartPosi.Text));
  const auto last = static_cast<int>(Val(frmPrintSelect.txtPrintEndPosi.Text));
  if (first < 0 || last < 1 || last > kPosiMaxNo || first > last) return {1, 0};
  return {std::max(first, 1), last};
}

bool Accept(const Rows& rows, PrintChoice& choice) {
  choice.Posi = rows[0].wanted.Value;
  choice.Para = rows[1].wanted.Value;
  choice.Range = TypedRange();
  if (choice.Posi && !rows[0].FromFile() && choice.Range.IsEmpty()) {
    Tell(kMsgBadRange);
    doors.forms->SetFocus(frmPrintSelect.txtPrintStartPosi);
    return false;
  }
  const bool lacks =
      std::any_of(rows.begin(), rows.end(), [](const Row& row) { return row.LacksFile(); });
  if (lacks) {
    Tell(kMsgBadFile);
    return false;
  }
  for (const Row& row : rows) {
    if (!row.FromFile()) row.path.clear();
  }
  return true;
}

}  // namespace

std::optional<PrintChoice> AskPrintChoice() {
  FrmPrintSelect& f = frmPrintSelect;
  PrintChoice choice;
  const Rows rows = RowsOf(choice);
  bool accepted = false;
  HandlersForOnce handlers;
  handlers.Set(f.Load, [&] { FillFirst(rows); });
  for (const Row& row : rows) {
    handlers.Set(row.wanted.Click, [&] { ShowRows(rows); });
    for (OptionButton& option : row.source) handlers.Set(option.Click, [&] { ShowRows(rows); });
    handlers.Set(row.select.Click, [&row] { SelectFile(row); });
  }
  handlers.Set(f.txtPrintStartPosi.LostFocus,
               [&] { Correct(f.txtPrintStartPosi, Loaded().first); });
  handlers.Set(f.txtPrintEndPosi.LostFocus, [&] { Correct(f.txtPrintEndPosi, Loaded().last); });
  handlers.Set(f.cmdPrintSet.Click, [&] {
    accepted = Accept(rows, choice);
    if (accepted) f.Visible = false;
  });
  handlers.Set(f.cmdCancel.Click, [&] { f.Visible = false; });
  ShowViewModal(f);
  return accepted ? std::optional(choice) : std::nullopt;
}

}  // namespace tr7
