#pragma once

#include "forms/grid.h"

namespace tr7 {

/// What this tool has done to the axes, the latest first.
struct FrmMotionLog : View {
  FrmMotionLog() : View("frmMotionLog", 5298) {
    HelpPage = "safety";
    MdiChild = true;
    Width = 9000;
    Height = 5000;
    cmdClose.Cancel = true;
  }
  Grid flgdLog{*this, "flgdLog", 1, 4, 1, 0};
  CommandButton cmdCopy{*this, "cmdCopy", 5405};
  CommandButton cmdClose{*this, "cmdClose", 5404};
};

inline Standing<FrmMotionLog> frmMotionLog;

}  // namespace tr7
