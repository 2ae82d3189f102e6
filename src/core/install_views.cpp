#include "core/install_views.h"

#include "core/about_view.h"
#include "core/frame_commands.h"
#include "core/help.h"
#include "core/keep_work.h"
#include "core/main_entry.h"
#include "core/options_view.h"
#include "core/window_state.h"
#include "data/grp_view.h"
#include "data/sm_view.h"
#include "forms/frm_main.h"
#include "link/tusin.h"
#include "monitor/io_view.h"
#include "monitor/poll.h"
#include "monitor/task_view.h"
#include "motion/motion_view.h"
#include "para/change_device.h"
#include "para/device_choice.h"
#include "para/device_write.h"
#include "para/para_after_device.h"
#include "para/para_view.h"
#include "para/stroke_calc.h"
#include "para/sys_para_view.h"
#include "posi/posi_view.h"
#include "posi/result_view.h"
#include "prog/prog_keep.h"
#include "prog/prog_view.h"
#include "report/report_view.h"
#include "state/wait.h"
#include "wire/wire_view.h"

namespace tr7 {
namespace {

void InstallLinkTimers() {
  frmMain.TimerJusin.Tick = TimerJusinTick;
  frmMain.TimerJusin.HasWork = TimerJusinHasWork;
  frmMain.TimerTusin.Tick = TimerTusinTick;
  frmMain.TimerTusin.HasWork = TimerTusinHasWork;
  frmMain.timerTimeout.Tick = TimerTimeoutTick;
}

}  // namespace

void InstallViews() {
  InstallLinkTimers();
  InstallFrame();
  InstallHelp();
  InstallAboutView();
  InstallEntry();
  InstallWindowState();
  InstallKeepWork();  // ahead of the views, which tell it what they hold
  InstallOptionsView();
  InstallReports();  // ahead of the views, which switch a button without a command off
  InstallPosiView();
  InstallResultView();
  InstallParaAfterDevice();
  InstallDeviceChoice();
  InstallDeviceWrite();
  InstallChangeDevice();
  InstallParaView();
  InstallStrokeCalc();
  InstallSysParaView();
  InstallGrpView();
  InstallSmView();
  InstallMotion();
  InstallProgViews();
  InstallProgKeep();
  InstallPolls();
  InstallIoMonitor();
  InstallTaskMonitor();
  InstallWireView();
}

}  // namespace tr7
