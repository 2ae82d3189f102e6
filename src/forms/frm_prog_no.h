#pragma once

#include "base/bool16.h"
#include "forms/grid.h"

namespace tr7 {

/// The 100 programs of the controller, to choose one.
struct FrmProgNo : View {
  FrmProgNo() : View("frmProgNo", 713) {
    HelpPage = "programs";
    Width = 4800;
    Height = 7500;
    cmdOk.Default = true;
    cmdCancel.Cancel = true;
  }
  Label lblProgNoCap{*this, "lblProgNoCap", 713};
  Label lblProgNo{*this, "lblProgNo"};  ///< the number of the selected row
  Grid flgdProgNo{*this, "flgdProgNo", 101, 2, 1, 1};
  CommandButton cmdOk{*this, "cmdOk", 1015};
  CommandButton cmdCancel{*this, "cmdCancel", 5153};

  std::int16_t ProgSelNo = 1;     ///< the program chosen last
  std::int16_t ProgSelSteps = 0;  ///< the figure of its row
  Bool16 ProgSelCancel;
};

inline Standing<FrmProgNo> frmProgNo;

}  // namespace tr7
