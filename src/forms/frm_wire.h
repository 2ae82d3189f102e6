#pragma once

#include "forms/grid.h"
#include "forms/timer.h"

namespace tr7 {

/// What the line carries, frame by frame, in words; and frames that are sent by hand.
struct FrmWire : View {
  FrmWire() : View("frmWire", 7700) {
    MdiChild = true;
    Width = 13200;
    Height = 8000;
    cmdClose.Cancel = true;
    cmdFindNext.Key = "F3";
    cmdFindPrevious.Key = "Shift+F3";
    for (TextBox* box : {&txtFilter, &txtFind}) box->InputMethodOff = false;
    FirstFocus = &flgdWire;
    HelpPage = "line";
  }
  TextBox txtFilter{*this, "txtFilter"};
  ComboBox comboDirection{*this, "comboDirection"};  ///< both ways, sent, received
  CheckBox chkHidePolls{*this, "chkHidePolls", 7712};
  CheckBox chkPause{*this, "chkPause", 7340};
  Grid flgdWire{*this, "flgdWire", 1, 6, 1, 1};
  Label lblWords{*this, "lblWords"};  ///< of the current row, for which its column has no room
  TextBox txtFind{*this, "txtFind"};
  CommandButton cmdFindNext{*this, "cmdFindNext", 7709};
  CommandButton cmdFindPrevious{*this, "cmdFindPrevious", 7710};
  Label lblCount{*this, "lblCount"};
  TextBox txtFrame{*this, "txtFrame"};
  CommandButton cmdSend{*this, "cmdSend", 7715};
  Label lblReply{*this, "lblReply"};
  CommandButton cmdCopy{*this, "cmdCopy", 5405};
  CommandButton cmdSave{*this, "cmdSave", 7713};
  CommandButton cmdClear{*this, "cmdClear", 7714};
  CommandButton cmdClose{*this, "cmdClose", 5404};

  Timer TimerWire{500, false};  ///< started by what the line carries: nothing ticks at rest
};

inline Standing<FrmWire> frmWire;

}  // namespace tr7
