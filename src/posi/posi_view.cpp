#include "posi/posi_view.h"

#include <string_view>

#include "core/app_state.h"
#include "core/hooks.h"
#include "core/message_box.h"
#include "core/settings.h"
#include "core/text.h"
#include "core/views.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_edit.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_hint.h"
#include "posi/posi_new.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/recalc.h"
#include "posi/unit_conversion.h"

namespace tr7 {
namespace {

constexpr int kDataTab = 0, kTeachingTab = 1, kMoveTab = 2;

TabStrip& ShownStrip() { return AppState.CtMode ? frmPosi.tabCmdPrg : frmPosi.tabCmd; }

void ShowTab() {
  FrmPosi& f = frmPosi;
  f.tabCmd.Visible = !AppState.CtMode;
  f.tabCmdPrg.Visible = AppState.CtMode;
  const int tab = ShownStrip().Selected;
  for (Control* control : std::initializer_list<Control*>{
           &f.framController, &f.cmdPosiRead, &f.cmdPosiWrite, &f.cmdPosiCtVerify, &f.framFile,
           &f.cmdPosiNew, &f.cmdPosiOpen, &f.cmdPosiSave, &f.cmdPosiSaveAs, &f.cmdPosiFileVerify,
           &f.cmdPosiPrint, &f.framEdit, &f.cmdInsertLine, &f.cmdDeleteLine, &f.cmdPosiCopy,
           &f.cmdPosiPaste, &f.cmdPosiCheck}) {
    control->Visible = tab == kDataTab;
  }
  f.cmdJOGST.Visible = f.cmdJOGend.Visible = tab == kTeachingTab;
  f.cmdMoveSelect.Visible = f.cmdMoveContinue.Visible = tab == kMoveTab;
}

/// Buttons whose command exists come on; the others stay off.
void EnableBuilt(std::initializer_list<CommandButton*> buttons, bool on) {
  for (CommandButton* button : buttons) button->Enabled = on && button->Click;
}

void EnableDataButtons(bool on) {
  FrmPosi& f = frmPosi;
  EnableBuilt(
      {&f.cmdPosiRead, &f.cmdPosiWrite, &f.cmdPosiCtVerify, &f.cmdPosiNew, &f.cmdPosiOpen,
       &f.cmdPosiSave, &f.cmdPosiSaveAs, &f.cmdPosiFileVerify, &f.cmdPosiPrint, &f.cmdPosiCheck},
      on);
}

struct EditState {
  bool copy, paste, insert, erase;
};

void SetEditCommands(const EditState& state) {
  FrmPosi& f = frmPosi;
  FrmMain& m = frmMain;
  // The frame's own commands are those of the active view.
  const bool active = !ActiveView() || ActiveView() == &frmPosi;
  const auto set = [active](Menu& menu, Menu& popup, CommandButton& button, bool on) {
    popup.Enabled = button.Enabled = on && button.Click;
    if (active) menu.Enabled = button.Enabled;
  };
  set(m.mnuEditCopy, f.mnuPopupCopy, f.cmdPosiCopy, state.copy);
  set(m.mnuEditPaste, f.mnuPopupPaste, f.cmdPosiPaste, state.paste);
  set(m.mnuEditInsert, f.mnuPopupInsert, f.cmdInsertLine, state.insert);
  set(m.mnuEditLineDelete, f.mnuPopupLineDelete, f.cmdDeleteLine, state.erase);
  if (active) m.mnuEdit.Enabled = state.copy || state.paste || state.insert || state.erase;
}

/// What was copied here, or anywhere: a text that does not fit is told when it is pasted.
bool SomethingIsCopied() {
  return frmPosi.CopiedIsLine || frmPosi.CopiedIsColumn ||
         (doors.clipboard && doors.clipboard->HasText());
}

void LoadPosiView() {
  LoadSettingDispMmUnit();
  frmPosi.Caption = Text(202);
  RebuildPosiView();
}

bool QueryUnloadPosiView(CloseReason) {
  if (AppState.TeachingNow) {
    MsgBox(TwoLines(60, 61));
    return true;
  }
  if (!frmPosi.PosiChanged) return false;
  const MsgAnswer answer = MsgBox(Text(391), MsgButtons::YesNoCancel, MsgIcon::Question, Text(390));
  if (answer == MsgAnswer::No) return false;
  if (answer != MsgAnswer::Yes) return true;
  Call(Hooks.PosidataSaveToFile);
  return frmPosi.PosiChanged;  // the save did not happen: nothing is thrown away
}

void SelectionChanged() {
  PosiHintHyoji();
  EditCommandsBySelection();
}

/// The check before another flow's change, which the user sees from the same place afterwards.
int CheckInPlace() {
  const KeepPlace place;
  return PosiDataCheckAll();
}

/// The check before the change has committed the grid, so the pulses are exact.
void ShowInNewUnit() {
  const KeepPlace place;
  RecalcMmFromPulse();
  Change_DispUnit();
  FG_ShowTable();
}

/// A stroke in pulses that the controller or the parameters have told stands beside the computed
/// limits: it is what both sides are compared by.
void RecalcLimits() {
  const auto told = AppState.StrokePulse;
  Culc_MaxPulse();
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis] && told[axis] > 0) AppState.StrokePulse[axis] = told[axis];
  }
  CalcMaxMm();
  CalcMaxVel();
  CalcStrokeMm();
}

}  // namespace

void RebuildPosiView() {
  ShowTab();
  if (AppState.CtMode) {
    Set_PosFormStrAtPrgMode();
    SizeInit_PosFlexGridAtPrgMode2();
  } else {
    Set_PosFormStrAtPosMode();
    SizeInit_PosFlexGridAtPosMode();
  }
  DispAxisData2();
  FG_ShowTable();
  Call(Hooks.ShowDeviceTexts);
}

void PosCMDBTN_Muko() {
  EnableDataButtons(false);
  frmPosi.flgdData.Enabled = false;
}

void PosCMDBTN_Yuko() {
  EnableDataButtons(true);
  frmPosi.flgdData.Enabled = true;
  EditCommandsBySelection();
}

void EditCMD_Muko() { SetEditCommands({false, false, false, false}); }

void EditCommandsBySelection() {
  const Grid& grid = frmPosi.flgdData;
  const int rows = grid.Rows();
  const auto is_body = [rows](int row) { return row >= kPosiHeaderRows && row < rows; };
  const bool free = grid.Enabled && !AppState.TeachingNow;
  const bool line = free && is_body(grid.Row);
  const bool lines = line && is_body(grid.RowSel);
  const bool room = AppState.PosiLastNo < kPosiMaxNo;
  SetEditCommands({lines, line && SomethingIsCopied(), line && room, lines});
}

PosiGridOff::PosiGridOff() { frmPosi.flgdData.Enabled = false; }

PosiGridOff::~PosiGridOff() {
  // While a flow holds the commands off, the grid comes back with them.
  frmPosi.flgdData.Enabled = AppState.CommandsOffDepth == 0;
  FG_HighSyoriEnd();
  doors.forms->SetFocus(frmPosi.flgdData);
}

void InstallPosiView() {
  FrmPosi& f = frmPosi;
  f.RefuseClose = true;
  f.Load = LoadPosiView;
  f.QueryUnload = QueryUnloadPosiView;
  f.CmdMuko = [] {
    PosCMDBTN_Muko();
    EditCMD_Muko();
  };
  f.CmdYuko = PosCMDBTN_Yuko;
  f.Activate = EditCommandsBySelection;
  f.tabCmd.Click = f.tabCmdPrg.Click = ShowTab;
  f.flgdData.SelChange = SelectionChanged;
  InstallPosiEdit();
  f.cmdPosiRead.Click = PosidataGetfromCt;
  f.cmdPosiNew.Click = SinkiSakusei;
  f.mnuPopupCopy.Click = [] { Call(Hooks.PosiCopy); };
  f.mnuPopupPaste.Click = [] { Call(Hooks.PosiPaste); };
  f.mnuPopupInsert.Click = [] { Call(Hooks.PosiInsertLine); };
  f.mnuPopupLineDelete.Click = [] { Call(Hooks.PosiDeleteLine); };

  Hooks.RecalcLimits = RecalcLimits;
  Hooks.PosiDataCheck = CheckInPlace;
  Hooks.SinkiSakusei = SinkiSakusei;
  Hooks.PosidataGetfromCt = PosidataGetfromCt;
  Hooks.PosiUnitChanged = ShowInNewUnit;
}

}  // namespace tr7
