#include "forms/frm_parameta2.h"

#include "forms/frm_stroke_calc.h"

namespace tr7 {

FrmParameta2::FrmParameta2() : View("frmParameta2", 6000) {
  MdiChild = true;
  Width = 14400;
  Height = 9900;
  for (std::size_t axis = 0; axis < 4; ++axis) {
    lblAxis[axis].Tag = lblAxisEtc[axis].Tag = lblAxisSp[axis].Tag =
        MsgId::At(220, static_cast<int>(axis));
    comboM0Disable[axis].Visible = false;
  }
  // These commands come with the transfer flows and printing; until then they are shown off.
  for (CommandButton* button : {&cmdParaRead, &cmdParaWrite, &cmdConpareCT, &cmdConpareFile,
                                &cmdParaPrint, &cmdParaFilePrint}) {
    button->Enabled = false;
  }
}

FrmParameta2 frmParameta2;
FrmStrokeCalc frmStrokeCalc;

}  // namespace tr7
