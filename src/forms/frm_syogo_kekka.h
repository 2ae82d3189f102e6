#pragma once

#include "base/bool16.h"
#include "forms/grid.h"

namespace tr7 {

/// Positions with flagged cells: what a check found bad, or where a verification found a
/// difference. Its grid has the columns of the position table without the comment.
struct FrmSyogoKekka : View {
  FrmSyogoKekka() : View("frmSyogoKekka") {
    HelpPage = "positions";
    Width = 15000;
    Height = 7500;
    cmdClose.Default = cmdClose.Cancel = true;
  }
  Label lblExplanation{*this, "lblExplanation"};
  Grid flgdKekka{*this, "flgdKekka", 2, 28, 2, 1};
  Label lblLine{*this, "lblLine"};  ///< the current line's flagged cells in words
  CommandButton cmdClose{*this, "cmdClose", 2202};

  Bool16 SyogoViewIsVerify;  ///< True: the words of a verification; False: of a check
};

inline Standing<FrmSyogoKekka> frmSyogoKekka;

}  // namespace tr7
