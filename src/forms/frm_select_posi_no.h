#pragma once

#include "forms/control.h"

namespace tr7 {

/// A range of position numbers: two number boxes. `frmSelectPosiNo2` also offers all positions,
/// `frmSelectPosiNo3` is the plain form, `frmSelectPosiNo4` is bound to the range that can be
/// verified and says so when there is none.
struct SelectPosiNoView : View {
  SelectPosiNoView(const char* name, MsgId tag) : View(name, tag) {
    Layout = "frmSelectPosiNo";
    HelpPage = "positions";
    Width = 5400;
    Height = 2850;
    cmdOk.Default = true;
    cmdCancel.Cancel = true;
    for (TextBox* box : {&txtFromNo, &txtToNo}) {
      box->MaxLength = 3;
      box->AllowedChars = "0123456789";
    }
  }
  Label lblMessage{*this, "lblMessage"};
  OptionButton optAll{*this, "optAll", 1, 5351};
  OptionButton optRange{*this, "optRange", 1, 5352};
  Label lblFromNo{*this, "lblFromNo", 5353};
  TextBox txtFromNo{*this, "txtFromNo"};
  Label lblToNo{*this, "lblToNo", 5354};
  TextBox txtToNo{*this, "txtToNo"};
  CommandButton cmdOk{*this, "cmdOk", 1015};
  CommandButton cmdCancel{*this, "cmdCancel", 5153};
};

inline Standing<SelectPosiNoView> frmSelectPosiNo2{"frmSelectPosiNo2", MsgId(5350)};
inline Standing<SelectPosiNoView> frmSelectPosiNo3{"frmSelectPosiNo3", MsgId(5355)};
inline Standing<SelectPosiNoView> frmSelectPosiNo4{"frmSelectPosiNo4", MsgId(5356)};

}  // namespace tr7
