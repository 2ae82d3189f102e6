#include "posi/posi_commands.h"

#include <initializer_list>

#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "posi/posi_edits.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/frame_menus.h"

namespace tr7 {
namespace {

/// Buttons whose command exists come on; the others stay off.
void EnableBuilt(std::initializer_list<CommandButton*> buttons, bool on) {
  for (CommandButton* button : buttons) button->Enabled = on && button->Click;
}

void EnableDataButtons(bool on) {
  FrmPosi& f = frmPosi;
  EnableBuilt({&f.cmdPosiRead, &f.cmdPosiWrite, &f.cmdPosiCtVerify, &f.cmdPosiNew, &f.cmdPosiOpen,
               &f.cmdPosiSave, &f.cmdPosiSaveAs, &f.cmdPosiFileVerify, &f.cmdPosiCompare,
               &f.cmdPosiPrint, &f.cmdPosiCheck},
              on);
}

void SetEditCommands(const EditStates& states) {
  FrmPosi& f = frmPosi;
  const auto set = [](bool& edit, Menu& popup, CommandButton& button, bool on) {
    edit = popup.Enabled = button.Enabled = on && button.Click;
  };
  set(f.Edit.Copy, f.mnuPopupCopy, f.cmdPosiCopy, states.Copy);
  set(f.Edit.Paste, f.mnuPopupPaste, f.cmdPosiPaste, states.Paste);
  set(f.Edit.Insert, f.mnuPopupInsert, f.cmdInsertLine, states.Insert);
  set(f.Edit.Delete, f.mnuPopupLineDelete, f.cmdDeleteLine, states.Delete);
  f.Edit.Undo = states.Undo;
  f.Edit.Redo = states.Redo;
  if (&FrontView() == &frmPosi) SwitchEditCommands();
}

/// What was copied here, or anywhere: a text that does not fit is told when it is pasted.
bool SomethingIsCopied() {
  return frmPosi.CopiedIsLine || frmPosi.CopiedIsColumn ||
         (doors.clipboard && doors.clipboard->HasText());
}

}  // namespace

void PosCMDBTN_Muko() {
  EnableDataButtons(false);
  frmPosi.flgdData.Enabled = false;
}

void PosCMDBTN_Yuko() {
  EnableDataButtons(true);
  frmPosi.flgdData.Enabled = true;
  EditCommandsBySelection();
}

void EditCMD_Muko() { SetEditCommands({}); }

void EditCommandsBySelection() {
  const Grid& grid = frmPosi.flgdData;
  const int rows = grid.Rows();
  const auto is_body = [rows](int row) { return row >= kPosiHeaderRows && row < rows; };
  const bool free = grid.Enabled && !AppState.TeachingNow;
  const bool line = free && is_body(grid.Row);
  const bool lines = line && is_body(grid.RowSel);
  const bool room = AppState.PosiLastNo < kPosiMaxNo;
  SetEditCommands({lines, line && SomethingIsCopied(), line && room, lines,
                   free && !PosiUndo.done.empty(), free && !PosiUndo.undone.empty()});
}

PosiGridOff::PosiGridOff() { frmPosi.flgdData.Enabled = false; }

PosiGridOff::~PosiGridOff() {
  // While a flow holds the commands off, the grid comes back with them.
  frmPosi.flgdData.Enabled = AppState.CommandsOffDepth == 0;
  FG_HighSyoriEnd();
  doors.forms->SetFocus(frmPosi.flgdData);
}

}  // namespace tr7
