#pragma once

#include <cstdint>
#include <string>

#include "base/bool16.h"
#include "base/indexed_array.h"
#include "forms/frm_prog_task.h"
#include "link/task_commands.h"
#include "monitor/poll.h"
#include "prog/prog_step.h"

namespace tr7 {

/// What a button has left for the next tick.
struct TaskCommand {
  enum Operation { None, Start, Stop, StopAll };
  Operation operation = None;
  int program = 0;
  std::int32_t stops_asked = 0;  ///< stops of any kind until then
};

/// The step in the form that the listings decode.
ProgStep StepOf(const TaskStep& running);

/// Since when a slot's task has been seen, on the pump's clock.
struct TaskTimes {
  std::int64_t program_us = 0;
  std::int64_t step_us = 0;
  bool ran_before = false;  ///< it ran already when the monitor looked first
};

/// What the monitor knows of the controller's tasks, by slot from 0.
struct TasksSeen {
  std::int16_t TaskCount = 0;
  IndexedArray<int, kTaskSlots> TaskProgNo{};     ///< 0: an idle slot
  IndexedArray<TaskStep, kTaskSlots> TaskStat{};  ///< what each slot's program does

  bool Runs(int program) const;
};

struct TaskMonitorRecord {
  Bool16 TaskCmdPending;
  TaskCommand TaskCmd;
  Bool16 TaskStopped;  ///< polling has been given up for this opening of the view
  TasksSeen Seen;
  IndexedArray<TaskTimes, kTaskSlots> Times{};
  bool AllSeen = false;         ///< a poll has ended well
  std::string TrueAt;           ///< the time of day when `Seen` was read
  bool StopAllSent = false;     ///< a stop of all programs is on its way
  std::int32_t StopsAsked = 0;  ///< stops of all programs by the button
  /// A command that the controller took, until the next poll shows what came of it.
  TaskCommand Taken;
  Poll TaskPoll{frmProgTask.TimerProgramTask};
};
extern TaskMonitorRecord TaskMonitor;

}  // namespace tr7
