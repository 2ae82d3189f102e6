#pragma once

#include "forms/grid.h"

namespace tr7 {

/// The steps in which a program and the controller's differ: "X" where a field does, else "O".
struct FrmProgSyogokekka : View {
  FrmProgSyogokekka() : View("frmProgSyogokekka", 2301) {
    HelpPage = "programs";
    Width = 8400;
    Height = 6000;
    cmdClose.Default = cmdClose.Cancel = true;
  }
  Label Label1{*this, "Label1", 2303};
  Grid flgdProgSyogoKekka{*this, "flgdProgSyogoKekka", 1, 6, 1, 1};
  CommandButton cmdClose{*this, "cmdClose", 2202};
};

inline Standing<FrmProgSyogokekka> frmProgSyogokekka;

}  // namespace tr7
