#include "monitor/task_buttons.h"

#include "base/text_helpers.h"
#include "link/request_queue.h"
#include "monitor/task_monitor.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

bool IsFree() {
  return AppState.CommandsOffDepth == 0 && !AppState.Offline && !TaskMonitor.TaskStopped;
}

/// A program may run that is not known of: what was seen is old, or a start is on its way.
bool AnyMayRun() {
  const bool starts = TaskMonitor.TaskCmd.operation == TaskCommand::Start ||
                      TaskMonitor.Taken.operation == TaskCommand::Start;
  return TaskMonitor.Seen.TaskCount != 0 || starts || TaskMonitor.TaskPoll.IsLate();
}

}  // namespace

int ChosenProgram() { return static_cast<int>(Val(frmProgTask.lblProgNo.Caption)); }

void ShowTaskButtons() {
  FrmProgTask& f = frmProgTask;
  const bool free = IsFree() && !TaskMonitor.TaskCmdPending;
  f.cmdStartTask.Enabled = free;
  f.cmdStopTask.Enabled =
      free && TaskMonitor.Seen.TaskCount != 0 && TaskMonitor.Seen.Runs(ChosenProgram());
  f.cmdStopAllTask.Enabled = f.Loaded && !LineIsBarred() && AnyMayRun();
}

}  // namespace tr7
