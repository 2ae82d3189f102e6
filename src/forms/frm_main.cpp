#include "forms/frm_main.h"

#include <initializer_list>

namespace tr7 {
namespace {

void Put(std::initializer_list<Menu*> items, Menu& into) {
  for (Menu* item : items) item->In = &into;
}

void BuildMenus(FrmMain& f) {
  Put({&f.mnuFileNew, &f.mnuFileNewProg, &f.mnuFileOpen, &f.mnuFileOpenProg, &f.mnuFileRecent,
       &f.mnuFileSave, &f.mnuFileSaveAs, &f.mnuFileClose, &f.mnuFilePrint, &f.mnuFileExit},
      f.mnuFile);
  Put({&f.mnuRecentPosi, &f.mnuRecentProg, &f.mnuRecentPara, &f.mnuRecentGrp, &f.mnuRecentSM},
      f.mnuFileRecent);
  Put({&f.mnuEditUndo, &f.mnuEditRedo, &f.mnuEditCopy, &f.mnuEditPaste, &f.mnuEditInsert,
       &f.mnuEditLineDelete},
      f.mnuEdit);
  Put({&f.mnuViewPosi, &f.mnuViewPara, &f.mnuViewSysPara, &f.mnuViewGrp, &f.mnuViewSM,
       &f.mnuViewGoTo, &f.mnuViewUnit, &f.mnuViewWire},
      f.mnuView);
  Put({&f.mnuContPosiRead, &f.mnuContPosiWrite, &f.mnuContPosiVerify, &f.mnuContProg,
       &f.mnuContAlarmReset, &f.mnuContVersion},
      f.mnuCont);
  Put({&f.mnuContProgRead, &f.mnuContProgTask}, f.mnuContProg);
  Put({&f.mnuMonitorIO, &f.mnuMonitorHensu}, f.mnuMonitor);
  Put({&f.mnuSettingOnline, &f.mnuSettingOffline, &f.mnuSettingDevice, &f.mnuSettingDeviceOnline,
       &f.mnuSettingCtMode, &f.mnuSettingOptions},
      f.mnuSetting);
  Put({&f.mnuWindowCascade, &f.mnuWindowTileHorizontal, &f.mnuWindowTileVertical}, f.mnuWindow);
  Put({&f.mnuHelpContents, &f.mnuHelpKeys, &f.mnuHelpTrouble, &f.mnuHelpMotionLog, &f.mnuHelpAbout},
      f.mnuHelp);
}

}  // namespace

FrmMain::FrmMain() : View("frmMain") {
  BuildMenus(*this);
  cmdStopNow.Urgent = true;
  mnuFileClose.Key = "Ctrl+W";
  imgAlarm.Visible = false;
  imgComPort.Visible = false;
  imgOnline.Visible = false;
  lblSimulated.Visible = false;
  cmdComCancel.Visible = false;
  cmdComCancel.Enabled = false;
  cmdComCancel.Cancel = true;
  ProgressBar1.Visible = false;
}

}  // namespace tr7
