#include "monitor/task_poll.h"

#include <algorithm>
#include <string>

#include "link/port.h"
#include "monitor/task_command.h"
#include "monitor/task_monitor.h"
#include "platform/doors.h"
#include "state/message_box.h"
#include "steps/record_frames.h"

namespace tr7 {

TaskMonitorRecord TaskMonitor;

bool TasksSeen::Runs(int program) const {
  return program != 0 &&
         std::find(TaskProgNo.begin(), TaskProgNo.end(), program) != TaskProgNo.end();
}

ProgStep StepOf(const TaskStep& running) { return {running.fields}; }

namespace {

/// The number that a field which is no number is told by.
constexpr const char* kNoNumber = "13";

TusinOutcome BadReply() {
  static_cast<void>(TellBadData());
  return TusinOutcome::Failed;
}

bool IsNumbers(const TaskStep& step) {
  const auto& fields = step.fields;
  return step.step >= 0 && std::none_of(fields.begin(), fields.end(), [](int n) { return n < 0; });
}

/// How many run, and which. Who runs is not asked where none does.
TusinOutcome P4_GetTaskProgNo(TasksSeen& seen) {
  int count = 0;
  if (const auto outcome = ReadTaskCount(count); outcome != TusinOutcome::Good) return outcome;
  if (count < 0) return BadReply();
  seen.TaskCount = static_cast<std::int16_t>(count);
  if (count == 0) return TusinOutcome::Good;
  if (!TaskMonitor.TaskPoll.GoesOn()) return TusinOutcome::Withdrawn;
  const TusinOutcome outcome = ReadTaskPrograms(seen.TaskProgNo);
  const auto& programs = seen.TaskProgNo;
  const bool bad = std::any_of(programs.begin(), programs.end(), [](int n) { return n < 0; });
  return outcome == TusinOutcome::Good && bad ? BadReply() : outcome;
}

/// What the program of a slot does. One that has ended meanwhile leaves an idle slot.
TusinOutcome P4_GetStepStatus(TasksSeen& seen, int slot) {
  TaskStep& step = seen.TaskStat[slot];
  const int program = seen.TaskProgNo[slot];
  const TusinOutcome outcome = ReadTaskStep(program, step);
  if (outcome != TusinOutcome::Good) return outcome;
  if (!IsNumbers(step)) {
    MsgBox(std::string("Error No. = ") + kNoNumber);
    return TusinOutcome::Failed;
  }
  if (step.program != program) return BadReply();
  if (step.step == 0) seen.TaskProgNo[slot] = 0;
  return TusinOutcome::Good;
}

TusinOutcome ReadTasks(TasksSeen& seen) {
  if (const auto outcome = P4_GetTaskProgNo(seen); outcome != TusinOutcome::Good) return outcome;
  for (int slot = 0; slot < kTaskSlots; ++slot) {
    if (seen.TaskProgNo[slot] == 0) continue;
    if (!TaskMonitor.TaskPoll.GoesOn()) return TusinOutcome::Withdrawn;
    const TusinOutcome outcome = P4_GetStepStatus(seen, slot);
    if (outcome != TusinOutcome::Good) return outcome;
  }
  return TusinOutcome::Good;
}

/// Takes over what has been read; a task's times count on while it is the same.
void Take(const TasksSeen& seen) {
  const TasksSeen& before = TaskMonitor.Seen;
  const std::int64_t now = doors.pump->NowUs();
  for (int slot = 0; slot < kTaskSlots; ++slot) {
    TaskTimes& times = TaskMonitor.Times[slot];
    const bool same = seen.TaskProgNo[slot] == before.TaskProgNo[slot] && TaskMonitor.AllSeen;
    if (!same) times = {now, now, !TaskMonitor.AllSeen};
    if (seen.TaskStat[slot].step != before.TaskStat[slot].step) times.step_us = now;
  }
  TaskMonitor.Seen = seen;
  TaskMonitor.AllSeen = true;
  TaskMonitor.TrueAt = doors.pump->TimeOfDay();
}

TusinOutcome AskTasks() {
  const PortClosedAfter port_closed;
  if (const auto sent = SendTaskCommand(); sent != TusinOutcome::Good) return sent;
  if (!TaskMonitor.TaskPoll.GoesOn()) return TusinOutcome::Withdrawn;
  TasksSeen seen;
  const TusinOutcome outcome = ReadTasks(seen);
  // What came in for a monitor that has ended meanwhile is nobody's.
  if (outcome == TusinOutcome::Good && TaskMonitor.TaskPoll.GoesOn()) Take(seen);
  return outcome;
}

}  // namespace

PollEnd NormalTimerProcessing() { return TaskMonitor.TaskPoll.Run(AskTasks); }

}  // namespace tr7
