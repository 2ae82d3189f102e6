#pragma once

#include "forms/control.h"
#include "forms/timer.h"

namespace tr7 {

/// The frame: menus, tool bar, status area and the shared timers.
struct FrmMain : View {
  FrmMain();

  Menu mnuFile{*this, "mnuFile", 5000};
  Menu mnuFileNew{*this, "mnuFileNew", 5001};
  Menu mnuFileNewProg{*this, "mnuFileNewProg", 5002};
  Menu mnuFileOpen{*this, "mnuFileOpen", 5003};
  Menu mnuFileOpenProg{*this, "mnuFileOpenProg", 5004};
  Menu mnuFileRecent{*this, "mnuFileRecent", 5600};
  MenuList mnuRecentPosi{*this, "mnuRecentPosi", 5601};
  MenuList mnuRecentProg{*this, "mnuRecentProg", 5602};
  MenuList mnuRecentPara{*this, "mnuRecentPara", 5603};
  MenuList mnuRecentGrp{*this, "mnuRecentGrp", 5604};
  MenuList mnuRecentSM{*this, "mnuRecentSM", 5605};
  Menu mnuFileSave{*this, "mnuFileSave", 5005};
  Menu mnuFileSaveAs{*this, "mnuFileSaveAs", 5006};
  Menu mnuFileClose{*this, "mnuFileClose", 5007};
  Menu mnuFilePrint{*this, "mnuFilePrint", 5008};
  Menu mnuFileExit{*this, "mnuFileExit", 5009};
  Menu mnuEdit{*this, "mnuEdit", 5010};
  Menu mnuEditUndo{*this, "mnuEditUndo", 7060};
  Menu mnuEditRedo{*this, "mnuEditRedo", 7061};
  Menu mnuEditCopy{*this, "mnuEditCopy", 5011};
  Menu mnuEditPaste{*this, "mnuEditPaste", 5012};
  Menu mnuEditInsert{*this, "mnuEditInsert", 5013};
  Menu mnuEditLineDelete{*this, "mnuEditLineDelete", 5014};
  Menu mnuView{*this, "mnuView", 5020};
  Menu mnuViewPosi{*this, "mnuViewPosi", 5021};
  Menu mnuViewPara{*this, "mnuViewPara", 5022};
  Menu mnuViewSysPara{*this, "mnuViewSysPara", 5023};
  Menu mnuViewGrp{*this, "mnuViewGrp", 5024};
  Menu mnuViewSM{*this, "mnuViewSM", 5025};
  Menu mnuViewGoTo{*this, "mnuViewGoTo", 5611};
  Menu mnuViewUnit{*this, "mnuViewUnit", 5614};
  Menu mnuViewWire{*this, "mnuViewWire", 7701};
  Menu mnuCont{*this, "mnuCont", 5030};
  Menu mnuContPosiRead{*this, "mnuContPosiRead", 5031};
  Menu mnuContPosiWrite{*this, "mnuContPosiWrite", 5032};
  Menu mnuContPosiVerify{*this, "mnuContPosiVerify", 5033};
  Menu mnuContProg{*this, "mnuContProg", 5034};
  Menu mnuContProgRead{*this, "mnuContProgRead", 5035};
  Menu mnuContProgTask{*this, "mnuContProgTask", 5036};
  Menu mnuContAlarmReset{*this, "mnuContAlarmReset", 5037};
  Menu mnuContVersion{*this, "mnuContVersion", 5038};
  Menu mnuMonitor{*this, "mnuMonitor", 5040};
  Menu mnuMonitorIO{*this, "mnuMonitorIO", 5041};
  Menu mnuMonitorHensu{*this, "mnuMonitorHensu", 5042};
  Menu mnuSetting{*this, "mnuSetting", 5050};
  Menu mnuSettingOnline{*this, "mnuSettingOnline", 5051};
  Menu mnuSettingOffline{*this, "mnuSettingOffline", 5052};
  Menu mnuSettingDevice{*this, "mnuSettingDevice", 5053};
  Menu mnuSettingDeviceOnline{*this, "mnuSettingDeviceOnline", 5054};
  Menu mnuSettingCtMode{*this, "mnuSettingCtMode", 5055};
  Menu mnuSettingOptions{*this, "mnuSettingOptions", 5056};
  Menu mnuWindow{*this, "mnuWindow", 5060};
  Menu mnuWindowCascade{*this, "mnuWindowCascade", 5061};
  Menu mnuWindowTileHorizontal{*this, "mnuWindowTileHorizontal", 5062};
  Menu mnuWindowTileVertical{*this, "mnuWindowTileVertical", 5063};
  Menu mnuHelp{*this, "mnuHelp", 5070};
  Menu mnuHelpContents{*this, "mnuHelpContents", 5071};
  Menu mnuHelpKeys{*this, "mnuHelpKeys", 7910};
  Menu mnuHelpTrouble{*this, "mnuHelpTrouble", 7911};
  Menu mnuHelpMotionLog{*this, "mnuHelpMotionLog", 5297};
  Menu mnuHelpAbout{*this, "mnuHelpAbout", 5072};

  Toolbar tbToolBar{*this,
                    "tbToolBar",
                    {{"New", 5100},
                     {"Open", 5101},
                     {"Save", 5102},
                     {""},
                     {"Print", 5103},
                     {""},
                     {"Cut", 5104},
                     {"Copy", 5105},
                     {"Paste", 5106},
                     {""},
                     {"PrgEdit", 5107},
                     {"PrgExe", 5108}}};

  Label lblCtMode{*this, "lblCtMode"};
  Label lblOnline{*this, "lblOnline"};              ///< online or offline, in words
  Label lblSimulated{*this, "lblSimulated", 5115};  ///< on while the port leads to the simulator
  Label lblStatus{*this, "lblStatus"};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  CommandButton cmdComCancel{*this, "cmdComCancel", 5111};
  /// An axis moves by this tool's command, or may do so.
  Image imgMoving{*this, "imgMoving", 8914, 8915};
  CommandButton cmdStopNow{*this, "cmdStopNow", 5118};
  Label lblAlarm{*this, "lblAlarm", 5113};
  Image imgAlarm{*this, "imgAlarm", 8916, 8917};
  CommandButton cmdReset{*this, "cmdReset", 5110};
  Label lblComPort{*this, "lblComPort", 5112};
  Image imgComPort{*this, "imgComPort", 8912, 8913};
  Image imgOnline{*this, "imgOnline", 8910, 8911};
  StatusBar sbStatusBar{*this, "sbStatusBar", 4};

  Timer TimerJusin{1, true};
  Timer TimerTusin{2, true};
  Timer timerTimeout{15000, false};
  Timer Timer1{500, true};
  Timer Timer2{0, true};
  Timer timerTerminate{100, false};
  Timer TimerTest{1000, false};
  Timer TimerClosedViews{1, true};  ///< ends the records of views that were closed
  Timer TimerPolls{1, true};        ///< the monitor that comes next on the line
  Timer TimerKeep{10000, false};    ///< runs while there is unsaved work
  Timer TimerKeepNow{1, true};      ///< keeps it, as soon as that disturbs nothing

  std::function<void()> FrontChanged;  ///< another view has come to the front
  /// The F1 key, wherever the focus is: `page` of the manual; empty: that of the view in front.
  Handler<void(const std::string& page)> Help;
  /// The Escape key, wherever the focus is and whatever box stands. True: it has stopped something,
  /// and means nothing else.
  Handler<bool()> Escape;
};

inline Standing<FrmMain> frmMain;

// Panels of sbStatusBar by index.
inline constexpr int kPanelError = 0;  ///< the last alarm, version, input hint
inline constexpr int kPanelScale1 = 1;
inline constexpr int kPanelScale2 = 2;
inline constexpr int kPanelOverride = 3;  ///< the controller's inputs start no movement

}  // namespace tr7
