#pragma once

#include "forms/grid.h"
#include "forms/timer.h"

namespace tr7 {

/// What stands here and what another side holds, row by row, of any kind of data.
struct FrmCompare : View {
  FrmCompare();

  Label lblHere{*this, "lblHere", 5322};
  ComboBox comboHere{*this, "comboHere"};
  Label lblThere{*this, "lblThere", 5323};
  ComboBox comboThere{*this, "comboThere"};
  CommandButton cmdCompare{*this, "cmdCompare", 5325};
  CheckBox chkEqualToo{*this, "chkEqualToo", 5326};
  Label lblCount{*this, "lblCount"};  ///< how many differ, or what is being read
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  CommandButton cmdComCancel{*this, "cmdComCancel", 5111};
  Grid flgdCompare{*this, "flgdCompare", 1, 4, 1, 0};
  Label lblNote{*this, "lblNote"};  ///< what there is to know of the comparison, or of a take
  CommandButton cmdTake{*this, "cmdTake", 5327};
  CommandButton cmdTakeAll{*this, "cmdTakeAll", 5328};
  CommandButton cmdClose{*this, "cmdClose", 2202};

  Timer TimerReading{100};  ///< while the controller is read: how far that is
};

inline Standing<FrmCompare> frmCompare;

}  // namespace tr7
