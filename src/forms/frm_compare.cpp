#include "forms/frm_compare.h"

namespace tr7 {

FrmCompare::FrmCompare() : View("frmCompare") {
  HelpPage = "compare";
  constexpr int kName = 0, kPlace = 1, kHere = 2, kThere = 3;
  Width = 13000;
  Height = 8000;
  FirstFocus = &cmdCompare;
  cmdCompare.Default = true;
  cmdClose.Cancel = cmdComCancel.Cancel = true;
  ProgressBar1.Visible = cmdComCancel.Visible = cmdComCancel.Enabled = false;
  constexpr int kRestOfView = -1;
  flgdCompare.SetColWidth(kName, 1800);
  flgdCompare.SetColWidth(kPlace, 850);
  flgdCompare.SetColWidth(kHere, 3100);
  flgdCompare.SetColWidth(kThere, kRestOfView);
  for (const int col : {kName, kPlace, kHere, kThere}) {
    flgdCompare.SetColAlign(col, col == kPlace ? ColAlign::Centre : ColAlign::Left);
  }
}

}  // namespace tr7
