#pragma once

#include "forms/control.h"
#include "forms/option_group.h"

namespace tr7 {

/// The stroke calculator over the parameter view: pulses of a stroke in mm.
struct FrmStrokeCalc : View {
  FrmStrokeCalc() : View("frmStrokeCalc", 6080) {
    HelpPage = "parameters";
    Width = 6600;
    Height = 4800;
    cmdCulStrokePulse.Default = true;
    cmdClose.Cancel = true;
    for (TextBox* box : {&txtCulStroke, &txtCulLead}) box->AllowedChars = "0123456789";
  }
  // What is known: the actuator, its stroke and its lead.
  Frame framActType{*this, "framActType", 6081};
  OptionGroup<2> optActType{*this, "optActType", 1, {6082, 6083}};
  Label lblCulStroke{*this, "lblCulStroke", 6084};
  TextBox txtCulStroke{*this, "txtCulStroke"};
  Label lblCulLead{*this, "lblCulLead", 6085};
  TextBox txtCulLead{*this, "txtCulLead"};
  CommandButton cmdCulStrokePulse{*this, "cmdCulStrokePulse", 6088};
  // The result, on a line of its own.
  Label lblResult{*this, "lblResult", 6089};
  Label lblStrokePulse{*this, "lblStrokePulse"};
  // Where it goes: one option an axis, side by side.
  Frame framInputSaki{*this, "framInputSaki", 6090};
  OptionGroup<4> optInputSaki{*this, "optInputSaki", 2, {220, 221, 222, 223}};
  CommandButton cmdInputStroke{*this, "cmdInputStroke", 6091};
  CommandButton cmdClose{*this, "cmdClose", 2202};

  Control* NextFocus = nullptr;  ///< where the focus goes once a result was entered
};

inline Standing<FrmStrokeCalc> frmStrokeCalc;

}  // namespace tr7
