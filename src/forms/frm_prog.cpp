#include "forms/frm_prog.h"

namespace tr7 {

FrmProg::FrmProg(int number) : View("frmProg" + std::to_string(number)) {
  Layout = "frmProg";
  HelpPage = "programs";
  MdiChild = true;
  Width = 11000;
  Height = 7000;
  List1.Visible = flgdPrgErr.Visible = cmdCloseSyntaxErr.Visible = false;
}

}  // namespace tr7
