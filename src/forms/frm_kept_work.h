#pragma once

#include "forms/grid.h"

namespace tr7 {

/// What an earlier run of the tool has left unsaved, one row each, for the user to decide about.
struct FrmKeptWork : View {
  FrmKeptWork();

  Label lblPrompt{*this, "lblPrompt", 7801};
  Grid flgdKept{*this, "flgdKept", 1, 4, 1, 0};
  CommandButton cmdTakeBackAll{*this, "cmdTakeBackAll", 7802};
  CommandButton cmdTakeBack{*this, "cmdTakeBack", 7803};
  CommandButton cmdDiscard{*this, "cmdDiscard", 7804};
  CommandButton cmdLater{*this, "cmdLater", 7805};
};

inline Standing<FrmKeptWork> frmKeptWork;

}  // namespace tr7
