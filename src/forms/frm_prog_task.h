#pragma once

#include "forms/grid.h"
#include "forms/timer.h"

namespace tr7 {

/// Starts and stops the controller's programs and shows what each task does.
struct FrmProgTask : View {
  FrmProgTask() : View("frmProgTask", 7100) {
    HelpPage = "tasks";
    MdiChild = true;
    Width = 13800;
    Height = 7200;
    cmdStopAllTask.Urgent = true;
    cmdClose.Cancel = true;
    FirstFocus = &flgdProgTask;
  }
  Label lblProgNoCap{*this, "lblProgNoCap", 710};
  Label lblProgNo{*this, "lblProgNo"};  ///< the program that the buttons mean; empty: none
  CommandButton cmdStartTask{*this, "cmdStartTask", 721};
  CommandButton cmdStopTask{*this, "cmdStopTask", 722};
  CommandButton cmdStopAllTask{*this, "cmdStopAllTask", 723};
  Grid flgdProgTask{*this, "flgdProgTask", 101, 2, 1, 1};  ///< row n is program n
  /// A row a task: eight columns of what it does, two of how long.
  Grid flgdProgTask2{*this, "flgdProgTask2", 11, 10, 1, 1};
  Label lblTasks{*this, "lblTasks"};
  Label lblPace{*this, "lblPace"};  ///< how old this is, where it is older than it should be
  CheckBox chkFollow{*this, "chkFollow", 7104};
  CommandButton cmdClose{*this, "cmdClose", 5404};

  Timer TimerProgramTask{2000, false};
  Timer TimerStopAll{1, true};  ///< a stop of all programs that waits to go out
};

inline Standing<FrmProgTask> frmProgTask;

}  // namespace tr7
