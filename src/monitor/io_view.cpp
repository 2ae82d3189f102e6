#include "monitor/io_view.h"

#include <array>

#include "forms/frm_io_check_fg.h"
#include "forms/frm_main.h"
#include "monitor/io_copy.h"
#include "monitor/io_names.h"
#include "monitor/io_override.h"
#include "monitor/io_points.h"
#include "monitor/io_poll.h"
#include "monitor/io_show.h"
#include "monitor/io_state.h"
#include "monitor/plot_record.h"
#include "monitor/plot_view.h"
#include "monitor/watch_show.h"
#include "monitor/watch_view.h"
#include "platform/doors.h"
#include "platform/event_pump.h"
#include "session/followers.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kStart = 702, kStop = 704, kSentLater = 7370, kFirstValues = 7320;
constexpr int kIoTab = 0, kWatchTab = 1;

void ShowTab() {
  FrmIOCheckFG& f = frmIOCheckFG;
  const std::array pages{&f.Io.controls, &f.Watched.controls, &f.Chart.controls};
  for (std::size_t page = 0; page < pages.size(); ++page) {
    pages.at(page)->SetVisible(static_cast<int>(page) == f.tabIo.Selected);
  }
  ShowPointNames();
}

/// Stop is on whatever runs: it sends nothing but what the override asks for.
void ShowButtons() {
  FrmIOCheckFG& f = frmIOCheckFG;
  const bool on = AppState.CommandsOffDepth == 0;
  SwitchControls(f, on);
  f.cmdIoMonitor.Caption = Text(IoMonitor.IoMonOn ? MsgId(kStop) : MsgId(kStart));
  f.cmdIoMonitor.Enabled = (IoMonitor.IoMonOn || (on && !AppState.Offline)) && !IoMonitor.IoStopReq;
  f.chkIgnore.Enabled = on && !AppState.Offline;
  f.chkIgnore.ToolTip = AppState.TeachingNow ? Text(kSentLater) : "";
  ShowWatchButtons();
  ShowIoPause();
}

/// A hand that clicks twice means one click.
void MsecTimer(int ms) {
  IoMonitor.MsecElapsed = False;
  frmIOCheckFG.TimerBtnOff.Start(ms);
  while (!IoMonitor.MsecElapsed && !AppState.Closing) Pump();
}

void cmdIoMonitor_Click() {
  if (IoMonitor.IoMonOn) {
    if (IoMonitor.OverrideOn && FlowHoldsLine()) return TellFlowRuns();
    StopIoMonitor();
    TakeBackOverride();
    return ShowButtons();
  }
  StartIoMonitor();
  ShowButtons();
  frmIOCheckFG.cmdIoMonitor.Enabled = false;
  MsecTimer(frmIOCheckFG.TimerBtnOff.Interval);
  ShowButtons();
}

/// While the monitor runs, its tick closes the view: as soon as the request on the line is over.
void cmdIoWinClose_Click() {
  if (!IoMonitor.IoMonOn) {
    CloseView(frmIOCheckFG, CloseReason::Code);
    return;
  }
  if (FlowKeepsViewsOpen()) return;
  IoMonitor.IoStopReq = True;
  ShowButtons();
  // A tick that is at work has switched its timer off, and comes to its end by itself.
  if (frmIOCheckFG.timerInputOutput1.Enabled) frmIOCheckFG.timerInputOutput1.Start(1);
}

bool QueryUnload(CloseReason reason) {
  if (FlowKeepsViewsOpen()) return true;
  if (reason != CloseReason::ControlMenu || !IoMonitor.IoMonOn) return false;
  cmdIoWinClose_Click();
  return true;
}

void Unload() {
  StopIoMonitor();
  IoMonitor.IoStopReq = False;
  IoMonitor.MsecElapsed = True;
  frmIOCheckFG.TimerDispInit.Stop();
  TakeBackOverride();
  frmIOCheckFG.chkIgnore.Value = false;
  IoMonitor.IgnorePending = False;
}

void FlipOutput(int row, int col) {
  if (col != kPointState || !IoMonitor.IoMonOn || IoMonitor.IoStopReq) return;
  // Without the points as they are, a flip would be one of a word that nobody has read.
  if (!IoMonitor.Known) return TellInStatusPanel(Text(kFirstValues));
  IoMonitor.IoOutFlip[OutputPoints().at(static_cast<std::size_t>(row)).Point()] = true;
  IoMonitor.IoWritePending = True;
  IoStateHyoji2();
}

void LoadNames() {
  if (!LoadIoNamesFromFile()) return;
  ShowPointNames();
  FollowPlotItems();
}

void CopyAll() {
  if (doors.clipboard) doors.clipboard->SetText(IoMonitorAsText());
}

void Load() {
  LoadIoNames();
  LoadWatchPage();
  LoadPlotPage();
  FollowPlotItems();
  IoMonitor.IoStopReq = IoMonitor.IoMonOn = False;
  IoMonitor.Stale = false;
  frmIOCheckFG.Edit.Copy = true;
  ShowTab();
  AllLED_Off();
  ShowIoPace();
  ShowButtons();
  frmIOCheckFG.TimerDispInit.Start();
}

/// The line has gone or come, or it is another mode or other axes now.
void FollowSession() {
  if (AppState.Offline) {
    FreezeIoMonitor();
    // No frame goes out any more: the next connection gives back what was taken.
    TakeBackOverride();
  }
  ShowPointNames();
  FollowPlotItems();
  ShowButtons();
}

void Open(int tab) {
  frmIOCheckFG.tabIo.Selected = tab;
  ShowOrBringToFront(frmIOCheckFG);
  ShowTab();
}

void InstallTables() {
  FrmIOCheckFG& f = frmIOCheckFG;
  WirePointTables();
  f.Io.flgdOutput.CellClick = FlipOutput;
  f.Commands.Copy = f.cmdIoCopy.Click = CopyAll;
  for (Grid* grid : {&f.Io.flgdInput, &f.Io.flgdOutput, &f.Watched.Flags.List,
                     &f.Watched.Variables.List, &f.Watched.PosVariables.List}) {
    grid->Copy = CopyAll;
  }
  f.Io.cmdNamesLoad.Click = LoadNames;
  f.Io.cmdNamesSave.Click = SaveIoNames;
}

void InstallTimers() {
  FrmIOCheckFG& f = frmIOCheckFG;
  f.timerInputOutput1.Tick = [] {
    timerInputOutput1_Timer();
    ShowButtons();
  };
  f.TimerAge.Tick = ShowIoAge;
  f.TimerBtnOff.Tick = [] {
    frmIOCheckFG.TimerBtnOff.Stop();
    IoMonitor.MsecElapsed = True;
  };
  f.TimerDispInit.Tick = [] {
    frmIOCheckFG.TimerDispInit.Stop();
    IoStateHyoji2();
  };
}

}  // namespace

void FollowIoSettings() {
  if (!frmIOCheckFG.Loaded) return;
  LoadIoNames();
  LoadWatchPage();
  ShowPointNames();
  FollowPlotItems();
}

void InstallIoMonitor() {
  FrmIOCheckFG& f = frmIOCheckFG;
  InstallTables();
  InstallWatchPage();
  InstallPlotPage();
  InstallTimers();
  f.Load = Load;
  f.QueryUnload = QueryUnload;
  f.Unload = Unload;
  f.CmdMuko = f.CmdYuko = ShowButtons;
  f.OnlineChanged = f.LayoutChanged = FollowSession;
  f.tabIo.Click = ShowTab;
  f.cmdIoMonitor.Click = cmdIoMonitor_Click;
  f.cmdIoWinClose.Click = cmdIoWinClose_Click;
  f.chkIgnore.Click = [] { IoMonitor.IgnorePending = True; };
  f.OpenedBy = &frmMain.mnuMonitorIO;
  frmMain.mnuMonitorIO.Click = [] { Open(kIoTab); };
  frmMain.mnuMonitorHensu.Click = [] { Open(kWatchTab); };
  Followers.TakeBackBeforeTheEnd = TakeBackOverride;
}

}  // namespace tr7
