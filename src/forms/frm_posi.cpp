#include "forms/frm_posi.h"

namespace tr7 {

FrmPosi::FrmPosi() : View("frmPosi") {
  HelpPage = "positions";
  MdiChild = true;
  Width = 15000;
  Height = 8400;
  tabCmdPrg.Visible = false;
  mnuPopupCopy.Key = "Ctrl+C";
  mnuPopupPaste.Key = "Ctrl+V";
  for (TabStrip* strip : {&tabCmd, &tabCmdPrg}) {
    strip->Tabs[1].Enabled = false;
    strip->Tabs[2].Enabled = false;
  }
}

}  // namespace tr7
