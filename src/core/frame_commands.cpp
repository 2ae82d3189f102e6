#include "core/frame_commands.h"

#include <functional>
#include <string>

#include "core/open_file.h"
#include "core/options_view.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "link/port.h"
#include "platform/doors.h"
#include "session/session.h"
#include "session/session_menus.h"
#include "state/app_state.h"
#include "state/frame_menus.h"
#include "state/view_instances.h"
#include "state/views.h"

namespace tr7 {
namespace {

using ViewCommand = Handler<void()> ViewCommands::*;

void Run(const Handler<void()>& command) {
  if (command) command();
}

/// A command that goes to the view in front.
std::function<void()> OfFront(ViewCommand command) {
  return [command] { Run(FrontView().Commands.*command); };
}

/// A command that goes to the position table whichever view is in front: the user sees it come.
std::function<void()> OfPositions(ViewCommand command) {
  return [command] {
    doors.forms->BringToFront(frmPosi);
    Run(frmPosi.Commands.*command);
  };
}

void CloseFrontView() {
  View* view = ActiveView();
  if (view && !view->StaysOpen) CloseView(*view, CloseReason::Code);
}

void ToolBarClick(const std::string& key) {
  if (key == "New") Run(frmMain.mnuFileNew.Click);
  if (key == "Open") OfPositions (&ViewCommands::Open)();
  if (key == "Save") OfPositions (&ViewCommands::Save)();
  if (key == "Print") OfPositions (&ViewCommands::Print)();
  if (key == "Copy") Run(frmMain.mnuEditCopy.Click);
  if (key == "Paste") Run(frmMain.mnuEditPaste.Click);
  if (key == "PrgEdit")
    Run(AppState.Offline ? frmMain.mnuFileOpenProg.Click : frmMain.mnuContProgRead.Click);
  if (key == "PrgExe") Run(frmMain.mnuContProgTask.Click);
}

void InstallFileAndEditMenus() {
  FrmMain& f = frmMain;
  f.mnuFileNew.Click = OfFront(&ViewCommands::New);
  f.mnuFileOpen.Click = OfFront(&ViewCommands::Open);
  f.mnuFileSave.Click = OfFront(&ViewCommands::Save);
  f.mnuFileSaveAs.Click = OfFront(&ViewCommands::SaveAs);
  f.mnuFileClose.Click = CloseFrontView;
  f.mnuFilePrint.Click = OfPositions(&ViewCommands::Print);
  f.mnuFileExit.Click = [] { CloseView(frmMain, CloseReason::Code); };
  f.mnuEditUndo.Click = OfFront(&ViewCommands::Undo);
  f.mnuEditRedo.Click = OfFront(&ViewCommands::Redo);
  f.mnuEditCopy.Click = OfFront(&ViewCommands::Copy);
  f.mnuEditPaste.Click = OfFront(&ViewCommands::Paste);
  f.mnuEditInsert.Click = OfFront(&ViewCommands::InsertLine);
  f.mnuEditLineDelete.Click = OfFront(&ViewCommands::DeleteLine);
  f.mnuViewGoTo.Click = OfFront(&ViewCommands::GoTo);
}

void InstallWindowMenu() {
  FrmMain& f = frmMain;
  const auto arrange = [](WindowArrangement how) {
    return [how] { doors.forms->ArrangeWindows(how); };
  };
  f.mnuWindowCascade.Click = arrange(WindowArrangement::Cascade);
  f.mnuWindowTileHorizontal.Click = arrange(WindowArrangement::TileHorizontal);
  f.mnuWindowTileVertical.Click = arrange(WindowArrangement::TileVertical);
}

}  // namespace

void InstallFrame() {
  FrmMain& f = frmMain;
  InstallFileAndEditMenus();
  InstallRecentFiles();
  InstallWindowMenu();
  InstallSessionMenus();
  f.mnuSettingOptions.Click = ShowOptions;
  f.mnuViewUnit.Click = ChangeUnit;
  f.tbToolBar.ButtonClick = ToolBarClick;
  f.cmdComCancel.Click = [] { AppState.CancelRequested = True; };
  f.Timer1.Tick = PortWatchTick;
  f.Timer1.HasWork = PortWatchHasWork;  // an idle tool is not woken for a port in order
  f.TimerClosedViews.Tick = DestroyClosedViews;
  f.TimerClosedViews.HasWork = ClosedViewsMayGo;
  f.CmdMuko = CTM_MukoSyori;
  f.CmdYuko = CTM_YukoSyori;
  f.FrontChanged = FollowActiveView;
}

}  // namespace tr7
