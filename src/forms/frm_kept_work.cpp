#include "forms/frm_kept_work.h"

namespace tr7 {

FrmKeptWork::FrmKeptWork() : View("frmKeptWork", 7800) {
  constexpr int kShares[] = {22, 36, 20, 22};
  Width = 12500;
  Height = 4800;
  cmdTakeBackAll.Default = true;
  cmdLater.Cancel = true;
  FirstFocus = &cmdTakeBackAll;
  HelpPage = "files";
  flgdKept.FitsView = true;
  for (int col = 0; col < flgdKept.Cols(); ++col) {
    flgdKept.SetColWidth(col, kShares[col]);
    flgdKept.SetColAlign(col, ColAlign::Left);
  }
}

}  // namespace tr7
