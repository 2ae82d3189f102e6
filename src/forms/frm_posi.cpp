#include "forms/frm_posi.h"

namespace tr7 {

FrmPosi::FrmPosi() : View("frmPosi") {
  MdiChild = true;
  Width = 15000;
  Height = 8400;
  tabCmdPrg.Visible = false;
  for (TabStrip* strip : {&tabCmd, &tabCmdPrg}) {
    strip->Tabs[1].Enabled = false;
    strip->Tabs[2].Enabled = false;
  }
  // These commands come with motion and printing; until then they are shown switched off.
  for (CommandButton* button :
       {&cmdPosiPrint, &cmdJOGST, &cmdJOGend, &cmdMoveSelect, &cmdMoveContinue}) {
    button->Enabled = false;
  }
}

}  // namespace tr7
