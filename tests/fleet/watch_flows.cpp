#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "forms/frm_wire.h"
#include "monitor/task_monitor.h"
#include "tests/fleet/voyage.h"
#include "tests/support/flow_test.h"
#include "wire/wire_table.h"

namespace tr7 {
namespace {

/// A transfer beneath an open monitor: no poll comes between its frames.
void Transfer(Voyage& voyage) {
  const std::string& sent = voyage.virt.port.sent;
  const std::size_t begin = sent.size();
  voyage.sent_at_refusal.reset();  // a command of its own
  if (!frmPosi.cmdPosiRead.Enabled) return;
  frmPosi.cmdPosiRead.Press();
  voyage.Require(sent.find("0TN", begin) == std::string::npos, "a poll collides");
}

void DoSomething(Voyage& voyage) {
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
      return Transfer(voyage);
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
    DoSomething(voyage);
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

constexpr Flow kFlows[] = {{"tasks", 8, WatchTasks}, {"wire", 3, SendByHandInConsole}};

}  // namespace

std::span<const Flow> WatchFlows() { return kFlows; }

void CloseMonitors(Voyage& voyage) {
  if (voyage.HasSent({"0TN"})) voyage.sent_at_refusal.reset();  // nobody asks for a poll
  if (frmProgTask.Loaded) CloseView(frmProgTask, CloseReason::Code);
  voyage.Require(!frmProgTask.TimerProgramTask.Enabled && !TaskMonitor.TaskPoll.IsOn() &&
                     !PollLine.on_line && PollLine.waiting.empty() && !TaskMonitor.TaskCmdPending,
                 "a monitor goes on behind its view");
}

}  // namespace tr7
