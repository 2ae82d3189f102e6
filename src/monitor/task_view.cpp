#include "monitor/task_view.h"

#include <array>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_main.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "link/tusin_wait.h"
#include "monitor/task_buttons.h"
#include "monitor/task_command.h"
#include "monitor/task_lost.h"
#include "monitor/task_marks.h"
#include "monitor/task_monitor.h"
#include "monitor/task_poll.h"
#include "platform/doors.h"
#include "prog/command_list.h"
#include "prog/prog_flows.h"
#include "prog/prog_listing.h"
#include "prog/prog_no.h"
#include "session/open_port.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/text.h"
#include "state/views.h"
#include "steps/record_frames.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr int kTasksMsg = 7114, kPaceMsg = 7115, kAgeMsg = 7116, kStoppedMsg = 7117,
              kNoTaskMsg = 7177;
constexpr int kRanBefore = 7125;

/// Columns of `flgdProgTask2`; those from the command to the result are the listing's.
enum TaskColumn : int { kSlot, kProgram, kStep, kCommand, kResult = 7, kRunning, kAtStep };
constexpr std::array kTitles{MsgId(7101), MsgId(724), MsgId(725), MsgId(726),  MsgId(727),
                             MsgId(728),  MsgId(729), MsgId(730), MsgId(7102), MsgId(7103)};
constexpr int kSlotWidth = 500, kNumberWidth = 800, kCellWidth = 1100, kTimeWidth = 1000;

/// "1:05", "1:00:05".
std::string Elapsed(std::int64_t since_us) {
  const std::int64_t seconds = (doors.pump->NowUs() - since_us) / 1'000'000;
  const std::string rest = ":" + DecPad(seconds % 60, 2);
  if (seconds < 3600) return std::to_string(seconds / 60) + rest;
  return std::to_string(seconds / 3600) + ":" + DecPad(seconds / 60 % 60, 2) + rest;
}

std::string Seconds(std::int64_t ms) {
  return PlainDecimal(RoundToOneDecimal(static_cast<double>(ms) / 1000.0));
}

/// The view says how old it is, where that is more than it should be; else, while no task runs, how
/// one starts.
void ShowPace() {
  const Poll& poll = TaskMonitor.TaskPoll;
  std::string& pace = frmProgTask.lblPace.Caption;
  frmProgTask.lblTasks.Caption = Text(kTasksMsg, std::to_string(TaskMonitor.Seen.TaskCount));
  if (!poll.IsLate()) {
    const bool rests = TaskMonitor.Seen.TaskCount == 0 && !TaskMonitor.TaskStopped;
    pace = rests ? Text(kNoTaskMsg) : std::string();
    return;
  }
  const std::int64_t age = poll.AgeMs();
  if (TusinQueue.IsUnanswered(doors.pump->NowUs())) {
    pace = NotRenewedText(TaskMonitor.TrueAt);
  } else if (age > poll.PaceMs()) {
    pace = Text(kAgeMsg, Seconds(age));
  } else {
    pace = Text(kPaceMsg, Seconds(poll.PaceMs()));
  }
}

/// How many tasks run; -1 after the user has been told.
int CountAtOpening() {
  const PortClosedAfter port_closed;
  if (!OpenPortOrTell()) return -1;
  int count = -1;
  if (ReadTaskCount(count) == TusinOutcome::Good && count < 0) static_cast<void>(TellBadData());
  return count;
}

/// Polling is given up: the buttons go off, the next tick closes the view. What was seen last stays
/// readable until then.
void GiveUpPolling() {
  TaskMonitor.TaskStopped = True;
  TaskMonitor.TaskPoll.End();
  ClearRunningSteps();
  frmProgTask.lblPace.Caption = Text(kStoppedMsg, TaskMonitor.TrueAt);
  ShowTaskButtons();
}

void SizeTasks() {
  Grid& tasks = frmProgTask.flgdProgTask2;
  for (std::size_t col = 0; col < kTitles.size(); ++col) {
    tasks.SetText(0, static_cast<int>(col), Text(kTitles[col]));
  }
  tasks.SetColWidth(kSlot, kSlotWidth);
  tasks.SetColWidth(kProgram, kNumberWidth);
  tasks.SetColWidth(kStep, kNumberWidth);
  for (int col = kCommand; col <= kResult; ++col) {
    tasks.SetColWidth(col, kCellWidth);
    tasks.SetColAlign(col, ColAlign::Left);
  }
  tasks.SetColWidth(kRunning, kTimeWidth);
  tasks.SetColWidth(kAtStep, kTimeWidth);
  for (const int col : {kProgram, kStep}) tasks.SetColAlign(col, ColAlign::Right);
  for (const int col : {kRunning, kAtStep}) tasks.SetColAlign(col, ColAlign::Right);
  for (int slot = 0; slot < kTaskSlots; ++slot)
    tasks.SetText(slot + 1, 0, std::to_string(slot + 1));
  tasks.FitsView = true;
}

void BlankRow(int row) {
  for (int col = kProgram; col <= kAtStep; ++col) frmProgTask.flgdProgTask2.SetText(row, col, "");
}

void ShowRow(int slot) {
  Grid& tasks = frmProgTask.flgdProgTask2;
  const int row = slot + 1;
  const TaskStep& step = TaskMonitor.Seen.TaskStat[slot];
  const TaskTimes& times = TaskMonitor.Times[slot];
  const ProgCells cells = DecodeStep(StepOf(step));
  tasks.SetText(row, kProgram, std::to_string(TaskMonitor.Seen.TaskProgNo[slot]));
  tasks.SetText(row, kStep, std::to_string(step.step));
  for (int column = kProgCommand; column <= kProgResult; ++column) {
    tasks.SetText(row, kCommand + column - kProgCommand, cells[column]);
  }
  tasks.SetText(row, kRunning, (times.ran_before ? "> " : "") + Elapsed(times.program_us));
  tasks.SetText(row, kAtStep, Elapsed(times.step_us));
}

void ChooseProgram() {
  const int program = frmProgTask.flgdProgTask.Row;
  frmProgTask.lblProgNo.Caption = program == 0 ? "" : std::to_string(program);
  ShowTaskButtons();
}

/// A task's row chooses its program in the list.
void ChooseTask() {
  const int slot = frmProgTask.flgdProgTask2.Row - 1;
  const int program = slot < 0 ? 0 : TaskMonitor.Seen.TaskProgNo[slot];
  if (program == 0) return;
  frmProgTask.flgdProgTask.SelectCell(program, 1);
  frmProgTask.flgdProgTask.BringIntoSight(program);
}

void LoadTaskMonitor() {
  // A poll of the last opening may still wait for the line: the monitor's place there stays.
  TaskMonitorRecord fresh;
  fresh.TaskPoll = TaskMonitor.TaskPoll;
  TaskMonitor = fresh;
  FrmProgTask& f = frmProgTask;
  f.lblProgNo.Caption = f.lblPace.Caption = "";
  for (Grid* grid : {&f.flgdProgTask, &f.flgdProgTask2}) grid->Row = grid->RowSel = 0;
  ListPrograms(f.flgdProgTask);
  DispStepNo(f.flgdProgTask);
  SizeTasks();
  for (int row = 1; row <= kTaskSlots; ++row) BlankRow(row);
  const int count = CountAtOpening();
  TaskMonitor.Seen.TaskCount = static_cast<std::int16_t>(count < 0 ? 0 : count);
  TaskMonitor.TaskStopped = count < 0;
  TaskMonitor.TrueAt = doors.pump->TimeOfDay();
  TaskMonitor.TaskPoll.Begin();
  TaskMonitor.TaskPoll.Soon();
  f.TimerProgramTask.Start();
  ShowPace();
  ShowTaskButtons();
}

void UnloadTaskMonitor() {
  frmProgTask.TimerProgramTask.Stop();
  TaskMonitor.TaskPoll.End();
  TaskMonitor.TaskStopped = True;
  ClearRunningSteps();
}

void TimerProgramTask_Tick() {
  if (TaskMonitor.TaskStopped) {
    SettleTaskCommand();
    return UnloadView(frmProgTask);
  }
  ShowTaskButtons();
  switch (NormalTimerProcessing()) {
    case PollEnd::Over:
      return;
    case PollEnd::Failed:
      GiveUpPolling();
      return SettleTaskCommand();
    case PollEnd::Done:
      Disp_TaskStatus();
      MarkRunningSteps();
      TellWhatCameOfIt();
      break;
    default:
      break;
  }
  ShowPace();
  ShowTaskButtons();
}

/// The line has gone, or it is another controller's or another mode now.
void FollowSession() {
  const bool over = AppState.Offline || !AppState.CtMode;
  if (over && !TaskMonitor.TaskStopped) GiveUpPolling();
  ShowTaskButtons();
}

void WireTables() {
  FrmProgTask& f = frmProgTask;
  for (Grid* grid : {&f.flgdProgTask, &f.flgdProgTask2}) {
    grid->CanEdit = [](int, int) { return false; };
  }
  f.flgdProgTask.SelChange = ChooseProgram;
  f.flgdProgTask2.SelChange = ChooseTask;
  f.flgdProgTask2.CellToolTip = [](int row, int col) {
    const bool time = row >= 1 && col == kRunning && TaskMonitor.Seen.TaskProgNo[row - 1] != 0;
    return time && TaskMonitor.Times[row - 1].ran_before ? Text(kRanBefore) : std::string();
  };
}

}  // namespace

void Disp_TaskStatus() {
  Grid& tasks = frmProgTask.flgdProgTask2;
  tasks.Redraw = false;
  for (int slot = 0; slot < kTaskSlots; ++slot) {
    TaskMonitor.Seen.TaskProgNo[slot] == 0 ? BlankRow(slot + 1) : ShowRow(slot);
  }
  tasks.Redraw = true;
  tasks.Touch();
}

void ShowTaskMonitor() {
  if (frmProgTask.Loaded) return ShowOrBringToFront(frmProgTask);
  const TransferScope transfer;
  if (ReadCommandLst() != 0) return;
  if (!ConnectOrOpenPort() || !AppState.CtMode || !KnowProgStepCounts()) return;
  ShowView(frmProgTask);
  if (TaskMonitor.TaskStopped) UnloadView(frmProgTask);
}

void InstallTaskMonitor() {
  FrmProgTask& f = frmProgTask;
  WireTables();
  f.Load = LoadTaskMonitor;
  f.Unload = UnloadTaskMonitor;
  f.QueryUnload = [](CloseReason) {
    SettleTaskCommand();
    return false;
  };
  FailureFollowers.WhatGoesOn = WordsOfTasks;
  f.CmdMuko = ShowTaskButtons;
  f.CmdYuko = [] {
    DispStepNo(frmProgTask.flgdProgTask);
    ShowTaskButtons();
  };
  f.OnlineChanged = f.LayoutChanged = FollowSession;
  f.cmdStartTask.Click = cmdStartTask_Click;
  f.cmdStopTask.Click = cmdStopTask_Click;
  f.cmdStopAllTask.Click = cmdStopAllTask_Click;
  f.chkFollow.Click = FollowRunningSteps;
  f.cmdClose.Click = [] { CloseView(frmProgTask, CloseReason::Code); };
  f.TimerProgramTask.Tick = TimerProgramTask_Tick;
  f.TimerStopAll.HasWork = StopAllWaits;
  f.TimerStopAll.Tick = SendStopAll;
  frmMain.mnuContProgTask.Click = ShowTaskMonitor;
}

}  // namespace tr7
