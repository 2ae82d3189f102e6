#include "monitor/task_lost.h"

#include "monitor/task_buttons.h"
#include "monitor/task_monitor.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMayGoOn = 7198, kRanBeforeAlarm = 7199, kProgramNo = 724, kStepNo = 725;

/// One line a task; empty where the monitor has seen none at work.
std::string RunningTasks() {
  std::string lines;
  for (int slot = 0; slot < kTaskSlots; ++slot) {
    const int program = TaskMonitor.Seen.TaskProgNo[slot];
    if (program == 0) continue;
    lines += "\n" + Text(kProgramNo) + " " + std::to_string(program) + "   " + Text(kStepNo) + " " +
             std::to_string(TaskMonitor.Seen.TaskStat[slot].step);
  }
  return lines;
}

}  // namespace

std::string WordsOfTasks(TusinEnd end) {
  if (!frmProgTask.Loaded) return {};
  ShowTaskButtons();
  if (TaskMonitor.Seen.TaskCount == 0) return {};
  if (end != TusinEnd::ErrorReply && end != TusinEnd::ErrorInResync) return Text(kMayGoOn);
  const std::string tasks = RunningTasks();
  return tasks.empty() ? tasks : Text(kRanBeforeAlarm, TaskMonitor.TrueAt) + tasks;
}

}  // namespace tr7
