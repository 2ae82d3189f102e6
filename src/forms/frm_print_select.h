#pragma once

#include "forms/option_group.h"

namespace tr7 {

/// What is to be printed: positions, parameters or both, each as shown or out of a file.
struct FrmPrintSelect : View {
  FrmPrintSelect() : View("frmPrintSelect", 7600) {
    HelpPage = "print";
    Width = 7500;
    Height = 4200;
    cmdPrintSet.Default = true;
    cmdCancel.Cancel = true;
    for (TextBox* box : {&txtPrintStartPosi, &txtPrintEndPosi}) {
      box->MaxLength = 3;
      box->AllowedChars = "0123456789";
    }
  }
  CheckBox chkPrintPosi{*this, "chkPrintPosi", 7601};
  OptionGroup<2> optPrintPosi{*this, "optPrintPosi", 1, {7603, 7604}};
  Label lblPrintStartPosi{*this, "lblPrintStartPosi", 7606};
  TextBox txtPrintStartPosi{*this, "txtPrintStartPosi"};
  Label lblPrintEndPosi{*this, "lblPrintEndPosi", 7607};
  TextBox txtPrintEndPosi{*this, "txtPrintEndPosi"};
  CommandButton cmdSelectPosiFile{*this, "cmdSelectPosiFile", 7605};
  Label lblPrintPosiFile{*this, "lblPrintPosiFile"};
  CheckBox chkPrintPara{*this, "chkPrintPara", 7602};
  OptionGroup<2> optPrintPara{*this, "optPrintPara", 2, {7603, 7604}};
  CommandButton cmdSelectParaFile{*this, "cmdSelectParaFile", 7605};
  Label lblPrintParaFile{*this, "lblPrintParaFile"};
  CommandButton cmdPrintSet{*this, "cmdPrintSet", 7608};
  CommandButton cmdCancel{*this, "cmdCancel", 5153};
};

inline Standing<FrmPrintSelect> frmPrintSelect;

}  // namespace tr7
