#include "monitor/task_command.h"

#include <string>

#include "base/text_helpers.h"
#include "forms/frm_main.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "monitor/task_buttons.h"
#include "monitor/task_monitor.h"
#include "motion/motion_log.h"
#include "motion/motion_now.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/wait.h"

namespace tr7 {
namespace {

constexpr int kStarted = 7106, kStopped = 7107, kAllStopped = 7108;
constexpr int kDoesNotRun = 7109, kRunsOn = 7110;
constexpr int kNotStarted = 7111, kNotStopped = 7112, kNotAllStopped = 7113;
constexpr int kStartWaits = 7120, kStopWaits = 7121, kChooseOne = 7126;
constexpr int kLogStart = 7122, kLogStop = 7123, kLogStopAll = 7124;
constexpr int kTaken = 5411, kNotTaken = 5412;
constexpr int kTries = 4, kPauseMs = 100;

/// What a command is logged by, and told by where it was not taken.
struct Words {
  MsgId log, not_taken;
};

Words WordsOf(TaskCommand::Operation operation) {
  switch (operation) {
    case TaskCommand::Start:
      return {kLogStart, kNotStarted};
    case TaskCommand::Stop:
      return {kLogStop, kNotStopped};
    default:
      return {kLogStopAll, kNotAllStopped};
  }
}

std::string NotTakenText(const TaskCommand& command) {
  return Text(WordsOf(command.operation).not_taken, std::to_string(command.program));
}

/// An alarm stays readable in the panel; what is told stands behind it.
void TellBehindAlarm(const std::string& text) {
  std::string& panel = frmMain.sbStatusBar.Panels[kPanelError];
  if (AppState.AlarmOn && !panel.empty()) {
    panel += "   " + text;
  } else {
    TellInStatusPanel(text);
  }
}

/// Logs what became of a command that was to go out. That it was not taken is told at once, what
/// came of it otherwise by the next poll.
void Settle(const TaskCommand& command, const std::string& frame, TusinOutcome outcome) {
  const bool taken = outcome == TusinOutcome::Good;
  LogMotion(WordsOf(command.operation).log, frame, taken ? MsgId(kTaken) : MsgId(kNotTaken));
  if (taken) {
    TaskMonitor.Taken = command;
  } else {
    TellBehindAlarm(NotTakenText(command));
  }
}

/// Stops so far, by the red button and of all programs: what was to start before comes to nothing.
std::int32_t StopsAsked() { return MotionNow.StopsAsked + TaskMonitor.StopsAsked; }

void Leave(TaskCommand::Operation operation, int program) {
  TaskMonitor.TaskCmd = {operation, program, StopsAsked()};
  TaskMonitor.TaskCmdPending = True;
  ShowTaskButtons();
}

void LeaveForChosen(TaskCommand::Operation operation, MsgId waits) {
  const int program = ChosenProgram();
  if (program == 0) return TellInStatusPanel(Text(kChooseOne));
  if (LineIsHeld() || PollLine.on_line) TellInStatusPanel(Text(waits, std::to_string(program)));
  Leave(operation, program);
  TaskMonitor.TaskPoll.Soon();
}

/// The controller says that it is there. What a stop has overtaken is asked anew.
TusinOutcome AskForController() {
  for (int tries = 1;; ++tries) {
    if (AppState.Offline) return TusinOutcome::Failed;
    if (ReadAlarmFromCt() >= 0) return TusinOutcome::Good;
    if (AppState.Offline) return TusinOutcome::Failed;
    if (tries == kTries) return TusinOutcome::Withdrawn;
    TusinWaitMs(kPauseMs);
  }
}

TaskCommand TakeLeft() {
  const TaskCommand command = TaskMonitor.TaskCmd;
  TaskMonitor.TaskCmdPending = False;
  TaskMonitor.TaskCmd = {};
  return command;
}

std::string FrameOf(const TaskCommand& command) {
  const std::string number = HexPad(command.program, 2);
  switch (command.operation) {
    case TaskCommand::Start:
      return "0DM" + number;
    case TaskCommand::Stop:
      return "0PM" + number;
    default:
      return "0PN";
  }
}

TusinOutcome Send(const TaskCommand& command) {
  const bool start = command.operation == TaskCommand::Start;
  if (const auto there = AskForController(); there != TusinOutcome::Good) return there;
  // A stop that was asked for since overrides a start, and so does a view that has closed.
  const bool overridden = StopsAsked() != command.stops_asked || !TaskMonitor.TaskPoll.GoesOn();
  if (start && overridden) return TusinOutcome::Withdrawn;
  return start ? TaskMonitorDataFromCt(command.program) : TaskProgramSelectToCt(command.program);
}

/// What was left for one program, where no poll comes any more.
void SettleOfProgram() {
  const TaskCommand command = TakeLeft();
  // A controller in position mode would refuse it, and the session would be lost with that.
  const bool goes_out =
      command.operation == TaskCommand::Stop && !AppState.Offline && AppState.CtMode;
  if (!goes_out) return Settle(command, FrameOf(command), TusinOutcome::Withdrawn);
  const PortClosedAfter port_closed;
  Settle(command, FrameOf(command), TaskProgramSelectToCt(command.program, TusinPriority::Next));
  SettleLostSession();
}

}  // namespace

void cmdStartTask_Click() { LeaveForChosen(TaskCommand::Start, kStartWaits); }

void cmdStopTask_Click() { LeaveForChosen(TaskCommand::Stop, kStopWaits); }

void cmdStopAllTask_Click() {
  ++TaskMonitor.StopsAsked;
  Leave(TaskCommand::StopAll, 0);
}

TusinOutcome SendTaskCommand() {
  if (!TaskMonitor.TaskCmdPending || StopAllWaits()) return TusinOutcome::Good;
  const TaskCommand command = TakeLeft();
  const TusinOutcome outcome = Send(command);
  Settle(command, FrameOf(command), outcome);
  return outcome;
}

bool StopAllWaits() {
  return TaskMonitor.TaskCmdPending && TaskMonitor.TaskCmd.operation == TaskCommand::StopAll &&
         !TaskMonitor.StopAllSent;
}

void SendStopAll() {
  const PortClosedAfter port_closed;
  const TaskCommand command = TakeLeft();
  TaskMonitor.StopAllSent = true;
  const TusinOutcome outcome = TaskMonitorStartToCt();
  TaskMonitor.StopAllSent = false;
  Settle(command, FrameOf(command), outcome);
  SettleLostSession();
  ShowTaskButtons();
  TaskMonitor.TaskPoll.Soon();
}

void TellWhatCameOfIt() {
  const TaskCommand command = TaskMonitor.Taken;
  TaskMonitor.Taken = {};
  const TasksSeen& seen = TaskMonitor.Seen;
  const std::string program = std::to_string(command.program);
  switch (command.operation) {
    case TaskCommand::None:
      return;
    case TaskCommand::Start:
      return TellBehindAlarm(
          Text(seen.Runs(command.program) ? MsgId(kStarted) : MsgId(kDoesNotRun), program));
    case TaskCommand::Stop:
      return TellBehindAlarm(
          Text(seen.Runs(command.program) ? MsgId(kRunsOn) : MsgId(kStopped), program));
    case TaskCommand::StopAll:
      return TellBehindAlarm(
          Text(seen.TaskCount == 0 ? MsgId(kAllStopped) : MsgId(kNotAllStopped)));
  }
}

void SettleTaskCommand() {
  if (!TaskMonitor.TaskCmdPending) return;
  const TaskCommand command = TaskMonitor.TaskCmd;
  if (command.operation == TaskCommand::StopAll && TaskMonitor.StopAllSent) {
    static_cast<void>(TakeLeft());  // the one that is on its way does the same
    return;
  }
  TaskMonitor.Taken = {};
  StopAllWaits() ? SendStopAll() : SettleOfProgram();
  if (TaskMonitor.Taken.operation == command.operation) {
    TellInStatusPanel({});  // it waits no more
  } else if (command.operation != TaskCommand::Start) {
    MsgBox(NotTakenText(command));
  }
}

}  // namespace tr7
