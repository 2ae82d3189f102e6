#pragma once

#include "forms/control.h"

namespace tr7 {

/// The number of a line to go to.
struct FrmGoTo : View {
  FrmGoTo() : View("frmGoTo", 5610) {
    Width = 4200;
    Height = 1700;
    HelpPage = "keys";
    cmdOk.Default = true;
    cmdCancel.Cancel = true;
    txtNumber.MaxLength = 3;
    txtNumber.AllowedChars = "0123456789";
    txtNumber.NamedBy = {&lblNumber};
    FirstFocus = &txtNumber;
  }
  Label lblNumber{*this, "lblNumber"};  ///< what is asked for, and from which to which
  TextBox txtNumber{*this, "txtNumber"};
  CommandButton cmdOk{*this, "cmdOk", 1015};
  CommandButton cmdCancel{*this, "cmdCancel", 5153};
};

inline Standing<FrmGoTo> frmGoTo;

}  // namespace tr7
