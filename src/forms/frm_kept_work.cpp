#include "forms/frm_kept_work.h"

namespace tr7 {

FrmKeptWork::FrmKeptWork() : View("frmKeptWork", 7800) {
  constexpr int kRestOfView = -1;
  constexpr int kWidths[] = {2600, kRestOfView, 1900, 2100};
  Width = 11500;
  Height = 5600;
  cmdTakeBackAll.Default = true;
  cmdLater.Cancel = true;
  FirstFocus = &cmdTakeBackAll;
  for (int col = 0; col < flgdKept.Cols(); ++col) {
    flgdKept.SetColWidth(col, kWidths[col]);
    flgdKept.SetColAlign(col, ColAlign::Left);
  }
}

}  // namespace tr7
