#pragma once

#include "forms/control.h"

namespace tr7 {

/// The options: port, position, unit, language.
struct FrmOptions2 : View {
  FrmOptions2() : View("frmOptions2", 5300) {
    HelpPage = "options";
    Width = 7200;
    Height = 4800;
    cmdOk.Default = true;
    cmdCancel.Cancel = true;
    txtPortNo.MaxLength = 1;
    comboPortDevice.Editable = true;
  }
  TabStrip tabOptions{*this, "tabOptions", {{2505}, {2506}, {2507}, {2508}}};
  // RS-232C
  Label lblPortNo{*this, "lblPortNo", 5301};
  TextBox txtPortNo{*this, "txtPortNo"};
  Label lblPortHint{*this, "lblPortHint", 5302};
  Label lblPortDevice{*this, "lblPortDevice", 5303};
  ComboBox comboPortDevice{*this, "comboPortDevice"};
  CheckBox chkPortOccupy{*this, "chkPortOccupy", 5305};
  // Posi
  Label lblRounding{*this, "lblRounding", 5310};
  OptionButton optRoundUp{*this, "optRoundUp", 2, 5311};
  OptionButton optRoundDown{*this, "optRoundDown", 2, 5312};
  // Unit
  Label lblUnit{*this, "lblUnit", 5308};
  OptionButton optUnitMm{*this, "optUnitMm", 3, 5306};
  OptionButton optUnitPulse{*this, "optUnitPulse", 3, 5307};
  // Language
  Label lblLanguage{*this, "lblLanguage", 5313};
  OptionButton optJapanese{*this, "optJapanese", 4, 5309};
  OptionButton optEnglish{*this, "optEnglish", 4, 5314};

  CommandButton cmdExport{*this, "cmdExport", 7150};
  CommandButton cmdImport{*this, "cmdImport", 7151};
  CommandButton cmdOk{*this, "cmdOk", 1015};
  CommandButton cmdApply{*this, "cmdApply", 5155};
  CommandButton cmdCancel{*this, "cmdCancel", 5153};
};

inline Standing<FrmOptions2> frmOptions2;

}  // namespace tr7
