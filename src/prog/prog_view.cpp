#include "prog/prog_view.h"

#include <algorithm>
#include <string>
#include <vector>

#include "forms/frm_main.h"
#include "platform/doors.h"
#include "prog/command_list.h"
#include "prog/prog_cells.h"
#include "prog/prog_check_flow.h"
#include "prog/prog_clip.h"
#include "prog/prog_compare.h"
#include "prog/prog_err_pane.h"
#include "prog/prog_flows.h"
#include "prog/prog_hint.h"
#include "prog/prog_lines.h"
#include "prog/prog_listing.h"
#include "prog/prog_no.h"
#include "prog/prog_popup.h"
#include "prog/prog_targets.h"
#include "prog/prog_undo.h"
#include "prog/prog_verify.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/frame_menus.h"
#include "state/go_to.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/view_instances.h"
#include "state/views.h"
#include "steps/transfer_scope.h"

namespace tr7 {

std::function<void(ProgView& view)> PrintProgram;

namespace {

constexpr int kMsgCaption = 7059, kMsgGoToError = 7064;
constexpr int kMsgAtWork = 7118, kMsgOtherAtWork = 7119;
constexpr Colour kEditColour = 0xC0FFFF;

void SwitchLineCommands(ProgView& view) {
  const bool free = AppState.CommandsOffDepth == 0;
  const bool line = IsWholeLine(view.flgdProg);
  const bool paste = line && ClipHoldsProgLines();
  view.Edit = {true,
               paste || !line,
               line,
               line,
               free && !view.Store.Undo.empty(),
               free && !view.Store.Redo.empty()};
  view.cmdInsLineProg.Enabled = view.cmdDelLineProg.Enabled = view.cmdProgLineCopy.Enabled =
      free && line;
  view.cmdProgLinePaste.Enabled = free && paste;
  FollowActiveView();
}

bool GoToStep(Grid& listing, int step, int column) {
  if (step < 1 || step >= listing.Rows()) return false;
  listing.SelectCell(step, column);
  return true;
}

/// By the mouse only the operand of a jump leads away.
bool GoToTarget(Grid& listing, bool by_key) {
  if (!by_key && listing.Col != kProgOperand1) return false;
  return GoToStep(listing, TargetOfStep(listing, listing.Row), kProgOperand1);
}

/// The step of an error, and the hand at it.
void GoToError(ProgView& view) {
  const auto row = static_cast<std::size_t>(view.flgdPrgErr.Row);
  if (row < 1 || row > view.Store.ProgErrList.size()) return;
  if (GoToStep(view.flgdProg, view.Store.ProgErrList[row - 1].step, kProgCommand)) {
    doors.forms->SetFocus(view.flgdProg);
  }
}

/// Whole lines, or the cells that are selected.
void CopyFromListing(ProgView& view) {
  IsWholeLine(view.flgdProg) ? PrgDataLineCopy(view) : ProgCellsCopy(view);
  SwitchLineCommands(view);
}

void PasteToListing(ProgView& view) {
  IsWholeLine(view.flgdProg) ? ProgDataLinePaste(view) : ProgCellsPaste(view);
  SwitchLineCommands(view);
}

/// Why a cell is marked; of the number, what the controller does there.
std::string ToolTipOf(const Grid& listing, int row, int column) {
  if (row < 1 || row >= listing.Rows()) return {};
  if (column >= kProgCommand) return FaultOfCell(listing, row, column);
  if (row != listing.AtWork().Row) return {};
  return Text(listing.AtWork().Differs ? MsgId(kMsgOtherAtWork) : MsgId(kMsgAtWork));
}

bool AskAndLeave(ProgView& view) {
  if (FlowKeepsViewsOpen()) return true;
  if (view.Store.ProgChanged && AskNoToLose(TwoLines(1033, 1034))) ProgDataSaveAs(view);
  return false;  // the view closes in any case
}

void WireKeys(ProgView& view) {
  Grid& listing = view.flgdProg;
  listing.FoldKey = ProgKey;
  listing.MoveOn = [&view, &listing](bool backwards) {
    if (!backwards) return ProgEnterKey(view);
    GoToStep(listing, listing.Row, std::max(listing.Col - 1, static_cast<int>(kProgCommand)));
  };
  listing.DeleteKey = [&view] {
    ProgDeleteKey(view);
    ProgSelectionMoved(view);
  };
  listing.DownAtEnd = [&view] { return ProgDownKey(view); };
  listing.GoToTarget = [&listing](bool by_key) { return GoToTarget(listing, by_key); };
  listing.List.Box = &view.List1;
  listing.List.Col = kProgCommand;
  listing.List.Show = [&view] { return ShowCommandList(view); };
  listing.List.Filter = [&view](const std::string& typed) { FilterCommandList(view, typed); };
  view.Commands.Undo = [&view] { ProgUndo(view); };
  view.Commands.Redo = [&view] { ProgRedo(view); };
}

void WireListing(ProgView& view) {
  Grid& listing = view.flgdProg;
  listing.MaxLength = [](int col) {
    constexpr int kWidths[kProgColumns] = {0, 6, 7, 7, 6, 6, 40};
    return kWidths[col];
  };
  listing.InputMethodOn = [](int col) { return col == kProgComment; };
  listing.AcceptEdit = [&view](int row, int col, std::string& text) -> EditVerdict {
    if (col == kProgCommand && ReadCommandLst() != 0) return {false};
    if (SetDataForFlexProg(view, row, col, text) != 0) {
      return {false, CellFault(-1, kProgCommand, text)};
    }
    if (text != view.flgdProg.Text(row, col)) RememberForUndo(view);
    view.Store.ProgChanged = True;  // meant so: also by an edit that ends as it began
    SwitchLineCommands(view);
    return {};
  };
  listing.EditColour = kEditColour;
  listing.IsUnused = [&listing](int row, int col) { return IsUnusedCell(listing, row, col); };
  listing.MarkOfRow = [&listing](int row) { return MarkOfRow(listing, row); };
  listing.IsMarked = [&listing](int row, int col) {
    return !FaultOfCell(listing, row, col).empty();
  };
  listing.CellToolTip = [&listing](int row, int col) { return ToolTipOf(listing, row, col); };
  listing.SelChange = [&view] { ProgSelectionMoved(view); };
  WireKeys(view);
  listing.Copy = view.Commands.Copy = [&view] { CopyFromListing(view); };
  listing.Paste = view.Commands.Paste = [&view] { PasteToListing(view); };
}

void WireButtons(ProgView& view) {
  view.cmdProgWrite.Click = [&view] { ProgDataWrite2Ct(view); };
  view.cmdProgVerifyCt.Click = [&view] { cmdProgVerifyCt_Click(view); };
  view.cmdProgSaveAs.Click = view.Commands.SaveAs = [&view] { ProgDataSaveAs(view); };
  view.cmdProgPrint.Click = [&view] { PrintProgram(view); };
  view.cmdProgCompare.Click = [&view] { CompareProgram(view); };
  view.cmdProgCheck.Click = [&view] { programCheck(view); };
  view.cmdInsLineProg.Click = view.Commands.InsertLine = [&view] { cmdInsLineProg_Click(view); };
  view.cmdDelLineProg.Click = view.Commands.DeleteLine = [&view] { cmdDelLineProg_Click(view); };
  view.cmdProgLineCopy.Click = [&view] {
    PrgDataLineCopy(view);
    SwitchLineCommands(view);
  };
  view.cmdProgLinePaste.Click = [&view] {
    ProgDataLinePaste(view);
    SwitchLineCommands(view);
  };
  view.Commands.GoTo = [&view] {
    const auto step = AskLineNumber(1, view.flgdProg.Rows() - 1);
    if (step) GoToStep(view.flgdProg, *step, view.flgdProg.Col);
  };
  view.Commands.New = NewProgram;
  view.Commands.Open = OpenProgram;
  view.List1.Click = [&view] { PickCommand(view); };
  view.cmdCloseSyntaxErr.Click = [&view] {
    view.Store.ProgSyntaxNg = False;
    ProgErrPaneClose(view);
  };
}

/// Write and verify are on while online.
void ProgCMDBTN_Yuko(ProgView& view) {
  SwitchControls(view, true);
  view.flgdProg.Enabled = true;
  view.cmdProgWrite.Enabled = view.cmdProgVerifyCt.Enabled = !AppState.Offline;
  SwitchLineCommands(view);
}

void ProgCMDBTN_Muko(ProgView& view) {
  SwitchControls(view, false);
  view.flgdProg.Enabled = false;
}

void WireView(ProgView& view) {
  view.Load = [&view] {
    SetStr_FGProg(view.flgdProg);
    InitSize_FGProg(view.flgdProg);
    FGProg_ReNumber(view.flgdProg);
    InitSize_FGPrgErr(view.flgdPrgErr);
    SetStr_FGProgErr(view.flgdPrgErr);
    ProgErrClear(view.flgdPrgErr);
    // A view that a flow opens stays off until the flow ends.
    AppState.CommandsOffDepth == 0 ? ProgCMDBTN_Yuko(view) : ProgCMDBTN_Muko(view);
  };
  view.QueryUnload = [&view](CloseReason) { return AskAndLeave(view); };
  view.IsChanged = [&view] { return static_cast<bool>(view.Store.ProgChanged); };
  view.Activate = [&view] { SwitchLineCommands(view); };
  view.CmdMuko = [&view] { ProgCMDBTN_Muko(view); };
  view.CmdYuko = view.OnlineChanged = [&view] {
    if (AppState.CommandsOffDepth == 0) ProgCMDBTN_Yuko(view);
  };
  view.flgdPrgErr.CanEdit = [](int, int) { return false; };
  view.flgdPrgErr.CellToolTip = [&view](int row, int col) {
    return row >= 1 && !view.flgdPrgErr.Text(row, col).empty() ? Text(kMsgGoToError) : "";
  };
  view.flgdPrgErr.Choose = [&view] { GoToError(view); };
}

}  // namespace

ProgView& NewProgView() {
  auto& view = NewView<ProgView>(AppState.NextProgViewNo);
  view.Caption = Text(kMsgCaption, std::to_string(AppState.NextProgViewNo++));
  WireListing(view);
  WireButtons(view);
  WireView(view);
  return view;
}

void ProgSelectionMoved(ProgView& view) {
  TellInStatusPanel(HintText(view.flgdProg));
  SwitchLineCommands(view);
}

void NewProgram() {
  if (ReadCommandLst() != 0) return;
  const auto program = AskProgNo();
  if (!program) return;
  ProgView& view = NewProgView();
  view.Store.ProgCopyNo = static_cast<std::int16_t>(*program);
  ShowView(view);
  FGProg_InitPos(view.flgdProg);
}

void OpenProgram() {
  if (ProgView* view = ProgDataFileOpen(NewProgView)) ShowView(*view);
}

ProgView* ShowProgFile(const std::string& path) {
  if (ReadCommandLst() != 0) return nullptr;
  ProgView* view = ReadProgFile(path, NewProgView);
  if (view) ShowView(*view);
  return view;
}

ProgView* UnchangedViewOf(const std::string& path) {
  if (path.empty()) return nullptr;
  for (View* open : OpenViews()) {
    auto* view = dynamic_cast<ProgView*>(open);
    if (view && view->Store.FilePath == path && !view->Store.ProgChanged) return view;
  }
  return nullptr;
}

void ReadProgramData() {
  const TransferScope transfer;
  if (ReadCommandLst() != 0) return;
  int program = 0;
  std::vector<ProgStep> steps;
  if (!ProgDataGetfromCt(program, steps)) return;
  ProgView& view = NewProgView();
  view.Store.ProgCtDA = std::move(steps);
  view.Store.ProgCopyNo = static_cast<std::int16_t>(program);
  view.Caption = Text(kMsgCaption, std::to_string(program));
  ProgDataHyoji(view);
  ShowView(view);
}

void InstallProgViews() {
  InstallProgNo();
  InstallProgSyogokekka();
  frmMain.mnuFileNewProg.Click = NewProgram;
  frmMain.mnuFileOpenProg.Click = OpenProgram;
  frmMain.mnuContProgRead.Click = ReadProgramData;
}

}  // namespace tr7
