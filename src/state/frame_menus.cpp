#include "state/frame_menus.h"

#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "state/app_state.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

void Enable(std::initializer_list<Menu*> menus, bool on) {
  for (Menu* menu : menus) menu->Enabled = on;
}

void ShowAndEnable(std::initializer_list<Menu*> menus, bool on) {
  for (Menu* menu : menus) menu->Visible = menu->Enabled = on;
}

void EnableTools(std::initializer_list<int> places, bool on) {
  for (int place : places) frmMain.tbToolBar.At(place).Enabled = on;
}

void SwitchFileCommands() {
  const View& front = FrontView();
  frmMain.mnuFileNew.Enabled = front.Commands.New != nullptr;
  frmMain.mnuFileOpen.Enabled = front.Commands.Open != nullptr;
  frmMain.mnuFileSave.Enabled = front.Commands.Save != nullptr;
  frmMain.mnuFileSaveAs.Enabled = front.Commands.SaveAs != nullptr;
  frmMain.mnuFileClose.Enabled = !front.StaysOpen;
  frmMain.mnuViewGoTo.Enabled = bool(front.Commands.GoTo);
}

constexpr int kToolCut = 7, kToolPrgEdit = 11, kToolPrgExe = 12;

}  // namespace

void Main_CMDBTN_Muko() { frmMain.cmdReset.Enabled = false; }
void Main_CMDBTN_Yuko() { frmMain.cmdReset.Enabled = true; }

void ToolBar_Muko() {
  for (ToolButton& button : frmMain.tbToolBar.Buttons) button.Enabled = false;
}

void ToolBar_Yuko() {
  EnableTools({1, 2, 3, 5, 7, 8, 9}, true);
  frmMain.tbToolBar.At(kToolPrgEdit).Enabled = AppState.CtMode;
  frmMain.tbToolBar.At(kToolPrgExe).Enabled = AppState.CtMode && !AppState.Offline;
  SwitchOffUnbuiltCommands();
}

void Menyu_Muko() {
  FrmMain& f = frmMain;
  Enable(
      {&f.mnuFile,      &f.mnuFileNew,   &f.mnuFileOpen,   &f.mnuFileSave,       &f.mnuFileSaveAs,
       &f.mnuFileClose, &f.mnuFilePrint, &f.mnuEdit,       &f.mnuEditUndo,       &f.mnuEditRedo,
       &f.mnuEditCopy,  &f.mnuEditPaste, &f.mnuEditInsert, &f.mnuEditLineDelete, &f.mnuView,
       &f.mnuCont,      &f.mnuMonitor,   &f.mnuSetting,    &f.mnuWindow,         &f.mnuHelp},
      false);
}

void Menyu_Yuko() {
  FrmMain& f = frmMain;
  Enable({&f.mnuFile, &f.mnuFilePrint, &f.mnuView, &f.mnuSetting, &f.mnuWindow, &f.mnuHelp}, true);
  SwitchFileCommands();
  f.mnuCont.Enabled = !AppState.Offline;
  f.mnuMonitor.Enabled = !AppState.Offline;
  SwitchOffUnbuiltCommands();
}

View& FrontView() { return ActiveView() ? *ActiveView() : frmPosi; }

void SwitchEditCommands() {
  FrmMain& f = frmMain;
  const EditStates& edit = FrontView().Edit;
  f.mnuEditUndo.Enabled = edit.Undo;
  f.mnuEditRedo.Enabled = edit.Redo;
  f.mnuEditCopy.Enabled = edit.Copy;
  f.mnuEditPaste.Enabled = edit.Paste;
  f.mnuEditInsert.Enabled = edit.Insert;
  f.mnuEditLineDelete.Enabled = edit.Delete;
  f.mnuEdit.Enabled =
      edit.Undo || edit.Redo || edit.Copy || edit.Paste || edit.Insert || edit.Delete;
}

void FollowActiveView() {
  if (!frmMain.mnuFile.Enabled) return;  // a flow holds the commands off
  SwitchFileCommands();
  SwitchEditCommands();
}

void CTM_MukoSyori() {
  Main_CMDBTN_Muko();
  ToolBar_Muko();
  Menyu_Muko();
}

void CTM_YukoSyori() {
  Main_CMDBTN_Yuko();
  ToolBar_Yuko();
  Menyu_Yuko();
}

void ChangeMenuDisp(Bool16 mode) {
  FrmMain& f = frmMain;
  ShowAndEnable({&f.mnuFileNewProg, &f.mnuFileOpenProg}, mode);
  ShowAndEnable({&f.mnuViewGrp, &f.mnuViewSM}, !mode);
  if (mode) Enable({&f.mnuContProgRead, &f.mnuContProgTask}, true);
  ShowAndEnable({&f.mnuContProg}, mode);
  f.mnuSettingOnline.Enabled = AppState.Offline;
  f.mnuSettingOffline.Enabled = !AppState.Offline;
  f.mnuSettingDeviceOnline.Enabled = !AppState.Offline;
  // A flow that learns the mode on its way keeps the commands off.
  if (mode)
    Enable({&f.mnuMonitor, &f.mnuCont}, !AppState.Offline && AppState.CommandsOffDepth == 0);
  SwitchOffUnbuiltCommands();
}

void DispControlerMode() {
  frmMain.lblCtMode.Caption = Text(AppState.CtMode ? MsgId(129) : MsgId(128));
}

void SwitchOffUnbuiltCommands() {
  FrmMain& f = frmMain;
  for (Menu* menu :
       {&f.mnuFileNewProg, &f.mnuFileOpenProg, &f.mnuViewSysPara, &f.mnuViewGrp, &f.mnuViewSM,
        &f.mnuContProgRead, &f.mnuContProgTask, &f.mnuMonitorIO, &f.mnuMonitorHensu}) {
    if (!menu->Click) menu->Enabled = false;
  }
  EnableTools({kToolCut}, false);
  if (!f.mnuFileOpenProg.Click) EnableTools({kToolPrgEdit}, false);
  if (!f.mnuContProgTask.Click) EnableTools({kToolPrgExe}, false);
}

}  // namespace tr7
