#include "core/frame_commands.h"

#include <functional>
#include <string>
#include <string_view>

#include "core/alarm_reset.h"
#include "core/app_state.h"
#include "core/frame_menus.h"
#include "core/hooks.h"
#include "core/message_box.h"
#include "core/options_view.h"
#include "core/session.h"
#include "core/text.h"
#include "core/version_check.h"
#include "core/views.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "link/port.h"
#include "platform/doors.h"

namespace tr7 {
namespace {

void CloseActiveView() {
  View* view = ActiveView();
  if (!view) return;
  // The position view stays open for the whole process: closing it finishes the tool.
  CloseView(view == &frmPosi ? static_cast<View&>(frmMain) : *view, CloseReason::Code);
}

void ToolBarClick(const std::string& key) {
  if (key == "New") Call(frmMain.mnuFileNew.Click);
  if (key == "Open") Call(Hooks.PosidataFileOpen);
  if (key == "Save") Call(Hooks.PosidataSaveToFile);
  if (key == "Print") Call(Hooks.PosiPrint);
  if (key == "Copy") Call(frmMain.mnuEditCopy.Click);
  if (key == "Paste") Call(frmMain.mnuEditPaste.Click);
  if (key == "PrgEdit")
    Call(AppState.Offline ? frmMain.mnuFileOpenProg.Click : frmMain.mnuContProgRead.Click);
  if (key == "PrgExe") Call(frmMain.mnuContProgTask.Click);
}

void ShowHelp() {
  const std::string& path = AppState.HelpFilePath;
  if (path.empty() || !doors.files->Exists(path) || !doors.help->Open(path)) {
    MsgBox(Text(5157, path));
  }
}

void ShowAbout() {
  MsgBox(frmMain.Caption + "\n\n" + Text(5160), MsgButtons::Ok, MsgIcon::Information);
}

void ModeLabelDblClick() {
  // The label is no command that the flows switch off.
  if (!AppState.Offline && frmMain.mnuSetting.Enabled) ChangeCtModeMenu();
}

void InstallFileMenu() {
  FrmMain& f = frmMain;
  f.mnuFileNew.Click = [] { Call(Hooks.SinkiSakusei); };
  f.mnuFileOpen.Click = [] { Call(Hooks.PosidataFileOpen); };
  f.mnuFileSave.Click = [] { Call(Hooks.PosidataSaveToFile); };
  f.mnuFileSaveAs.Click = [] { Call(Hooks.PosiDataSaveAs); };
  f.mnuFileClose.Click = CloseActiveView;
  f.mnuFileExit.Click = [] { CloseView(frmMain, CloseReason::Code); };
}

/// An edit command never reaches a view behind the one that the user works in, nor a table that is
/// being taught.
void CallForPosi(const std::function<void()>& hook) {
  const bool active = !ActiveView() || ActiveView() == &frmPosi;
  if (active && !AppState.TeachingNow) Call(hook);
}

void InstallEditAndViewMenus() {
  FrmMain& f = frmMain;
  f.mnuEditCopy.Click = [] { CallForPosi(Hooks.PosiCopy); };
  f.mnuEditPaste.Click = [] { CallForPosi(Hooks.PosiPaste); };
  f.mnuEditInsert.Click = [] { CallForPosi(Hooks.PosiInsertLine); };
  f.mnuEditLineDelete.Click = [] { CallForPosi(Hooks.PosiDeleteLine); };
  f.mnuViewPosi.Click = [] { doors.forms->BringToFront(frmPosi); };
  f.mnuViewPara.Click = [] { Call(Hooks.ShowParameters); };
}

void InstallControllerMenu() {
  FrmMain& f = frmMain;
  f.mnuContPosiRead.Click = [] { Call(Hooks.PosidataGetfromCt); };
  f.mnuContPosiWrite.Click = [] { Call(Hooks.PosidataLoadtoCt); };
  f.mnuContPosiVerify.Click = [] { Call(Hooks.PosiDataCtShogo); };
  f.mnuContAlarmReset.Click = AlarmReset;
  f.mnuContVersion.Click = ContVersionMenu;
}

void InstallSettingMenu() {
  FrmMain& f = frmMain;
  f.mnuSettingOnline.Click = ChangeToOnlineMenu;
  f.mnuSettingOffline.Click = ChangeToOfflineMenu;
  f.mnuSettingDevice.Click = [] {
    if (Hooks.Change_Device) Hooks.Change_Device();
  };
  f.mnuSettingDeviceOnline.Click = [] { Call(Hooks.DeviceOnline); };
  f.mnuSettingCtMode.Click = ChangeCtModeMenu;
  f.mnuSettingOptions.Click = ShowOptions;
}

void InstallWindowAndHelpMenus() {
  FrmMain& f = frmMain;
  const auto arrange = [](WindowArrangement how) {
    return [how] { doors.forms->ArrangeWindows(how); };
  };
  f.mnuWindowCascade.Click = arrange(WindowArrangement::Cascade);
  f.mnuWindowTileHorizontal.Click = arrange(WindowArrangement::TileHorizontal);
  f.mnuWindowTileVertical.Click = arrange(WindowArrangement::TileVertical);
  f.mnuHelpContents.Click = ShowHelp;
  f.mnuHelpAbout.Click = ShowAbout;
}

}  // namespace

void InstallFrame() {
  FrmMain& f = frmMain;
  InstallFileMenu();
  InstallEditAndViewMenus();
  InstallControllerMenu();
  InstallSettingMenu();
  InstallWindowAndHelpMenus();
  f.tbToolBar.ButtonClick = ToolBarClick;
  f.cmdReset.Click = AlarmReset;
  f.cmdComCancel.Click = [] { AppState.CancelRequested = True; };
  f.lblCtMode.DblClick = ModeLabelDblClick;
  f.Timer1.Tick = PortWatchTick;
  f.Timer1.HasWork = PortWatchHasWork;  // an idle tool is not woken for a port in order
  f.CmdMuko = CTM_MukoSyori;
  f.CmdYuko = CTM_YukoSyori;
  Hooks.ActiveViewChanged = FollowActiveView;
}

}  // namespace tr7
