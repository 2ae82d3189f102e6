#include "forms/frm_io_check_fg.h"
#include "forms/frm_wire.h"
#include "monitor/io_state.h"
#include "monitor/task_monitor.h"
#include "tests/fleet/voyage.h"
#include "wire/wire_table.h"

namespace tr7 {
namespace {

/// No poll comes between the frames of a transfer.
void ReadUnderTheMonitor(Voyage& voyage) {
  const std::size_t before = voyage.virt.port.sent.size();
  voyage.sent_at_refusal.reset();  // a command of its own
  if (!frmPosi.cmdPosiRead.Enabled) return;
  frmPosi.cmdPosiRead.Press();
  const std::string sent = voyage.virt.port.sent.substr(before);
  const std::size_t first = sent.find("0RP"), last = sent.rfind("0RP");
  for (const char* poll : {"0RI", "0RO", "0WO", "0FR", "0HR", "0HP", "0TN"}) {
    const std::size_t at = sent.find(poll, first == std::string::npos ? sent.size() : first);
    voyage.Require(at == std::string::npos || at > last, "a poll between the frames of a transfer");
  }
}

void EditLists(Random& random) {
  WatchPage& f = frmIOCheckFG.Watched;
  f.chkEditItem.Set(!f.chkEditItem.Value);
  WatchPane& pane = *random.OneOf({&f.Flags, &f.Variables, &f.PosVariables});
  pane.txtProgram.Type(random.OneOf({"", "1", "100"}));
  pane.txtNumber.Type(random.OneOf({"1", "4", "60"}));
  pane.List.SelectCell(random.Below(pane.List.Rows()), 0);
  random.OneOf({&pane.cmdAdd, &pane.cmdDelete, &pane.cmdUp})->Press();
}

void Act(Voyage& voyage) {
  FrmIOCheckFG& f = frmIOCheckFG;
  Random& random = voyage.random;
  voyage.sent_at_refusal.reset();  // a command of its own
  switch (random.Below(7)) {
    case 0:
      return ReadUnderTheMonitor(voyage);
    case 1:
      return f.chkIgnore.Set(!f.chkIgnore.Value);
    case 2:
      return f.cmdIoMonitor.Press();
    case 3:
      return EditLists(random);
    case 4:
      return frmMain.mnuSettingOnline.Press();
    default:
      f.Io.flgdOutput.CellClick(random.Below(kOutputRows), kPointState);
  }
}

void WatchIo(Voyage& voyage) {
  FrmIOCheckFG& f = frmIOCheckFG;
  Random& random = voyage.random;
  if (!frmMain.mnuMonitor.Enabled) return;
  (random.Chance(50) ? frmMain.mnuMonitorIO : frmMain.mnuMonitorHensu).Press();
  f.cmdIoMonitor.Press();
  for (int acts = random.Between(1, 8); acts > 0 && f.Visible; --acts) {
    voyage.virt.pump.RunFor(random.Below(4'000'000));
    Act(voyage);
  }
  const int how = random.Below(4);
  if (how == 0) f.cmdIoWinClose.Press();
  if (how == 1) CloseView(f, CloseReason::ControlMenu);
  if (how == 2) frmMain.mnuSettingOffline.Press();
  voyage.sent_at_refusal.reset();  // who stays online goes on watching
}

void ActOnTasks(Voyage& voyage) {
  FrmProgTask& f = frmProgTask;
  Random& random = voyage.random;
  voyage.virt.pump.RunFor(random.Below(2'500'000));
  f.flgdProgTask.SelectCell(1, 1);
  switch (random.Below(5)) {
    case 0:
      // Perhaps while the transfer runs.
      voyage.virt.pump.After(random.Below(4'000'000), [&f] {
        if (f.Loaded) f.cmdStopAllTask.Press();
      });
      return ReadUnderTheMonitor(voyage);
    case 1:
      f.cmdClose.Press();
      return frmMain.mnuContProgTask.Press();
    case 2:
      return f.cmdStopTask.Press();
    default:
      return f.cmdStartTask.Press();
  }
}

void WatchTasks(Voyage& voyage) {
  if (!AppState.CtMode || AppState.Offline) return;
  // It waits for an input, for whoever starts it.
  if (!voyage.virt.port.IsOpen()) HoldProgram(voyage.virt, 1, "103FF00100000000000");
  frmMain.mnuContProgTask.Press();
  for (int acts = voyage.random.Below(8); acts > 0 && frmProgTask.Loaded; --acts) {
    ActOnTasks(voyage);
  }
}

/// Frames of all kinds by hand; the console tells what it can of each.
void SendByHandInConsole(Voyage& voyage) {
  Random& random = voyage.random;
  frmMain.mnuViewWire.Press();
  for (int acts = random.Below(4); acts > 0 && frmWire.Loaded; --acts) {
    const WireCommand& command = WireCommands()[random.Below(int(WireCommands().size()))];
    std::string frame(command.start);
    frame.resize(std::max(command.request_length, frame.size()), '0');
    voyage.sent_at_refusal.reset();  // a command of its own
    frmWire.chkPause.Set(random.Chance(20));
    frmWire.txtFrame.Type(frame);
    frmWire.cmdSend.Press();
    const bool free = command.hand == HandRule::Free;
    voyage.Require(free || !voyage.HasSent({frame.c_str()}), "a frame by hand moves or writes");
    voyage.virt.pump.RunFor(random.Below(2'000'000));
    for (int row = 1; row < frmWire.flgdWire.Rows(); ++row) frmWire.flgdWire.Text(row, 5);
  }
  if (frmWire.Loaded) CloseView(frmWire, CloseReason::Code);
}

constexpr Flow kFlows[] = {
    {"io-monitor", 8, WatchIo}, {"tasks", 8, WatchTasks}, {"wire", 3, SendByHandInConsole}};

}  // namespace

void CloseMonitors(Voyage& voyage) {
  constexpr int kLastPollUs = 30'000'000;
  const bool watches = frmIOCheckFG.Loaded || IoMonitor.IoMonOn || IoMonitor.OverrideOn;
  if (watches) voyage.virt.pump.RunFor(kLastPollUs);
  if (watches || voyage.HasSent({"0TN"})) {
    voyage.sent_at_refusal.reset();  // nobody asks for a poll
  }
  for (View* view : {static_cast<View*>(&frmIOCheckFG), static_cast<View*>(&frmProgTask)}) {
    if (view->Loaded) CloseView(*view, CloseReason::Code);
  }
  voyage.Require(!IoMonitor.IoMonOn && !IoMonitor.OverrideOn &&
                     !frmProgTask.TimerProgramTask.Enabled && !TaskMonitor.TaskPoll.IsOn() &&
                     !PollLine.on_line && PollLine.waiting.empty() && !TaskMonitor.TaskCmdPending,
                 "a monitor goes on behind its view");
}

std::span<const Flow> MonitorFlows() { return kFlows; }

}  // namespace tr7
