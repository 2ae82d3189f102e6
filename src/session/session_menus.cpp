#include "session/session_menus.h"

#include "forms/frm_main.h"
#include "session/alarm_reset.h"
#include "session/session.h"
#include "session/version_menu.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

void ModeLabelDblClick() {
  // The label is no command that the flows switch off.
  if (!AppState.Offline && frmMain.mnuSetting.Enabled) ChangeCtModeMenu();
}

}  // namespace

void InstallSessionMenus() {
  FrmMain& f = frmMain;
  f.mnuSettingOnline.Click = ChangeToOnlineMenu;
  f.mnuSettingOffline.Click = ChangeToOfflineMenu;
  f.mnuSettingCtMode.Click = ChangeCtModeMenu;
  f.lblCtMode.DblClick = ModeLabelDblClick;
  f.mnuContVersion.Click = ContVersionMenu;
  f.cmdReset.Click = f.mnuContAlarmReset.Click = AlarmReset;
}

}  // namespace tr7
