#pragma once

#include <string>

#include "forms/control.h"
#include "forms/row_array.h"

namespace tr7 {

/// One step of the macro on show.
struct SmRow {
  SmRow(View& owner, std::size_t index)
      : lblSmStep(owner, "lblSmStep" + std::to_string(index + 1)),
        comboMerei(owner, "comboMerei" + std::to_string(index + 1)),
        txtSmData(owner, "txtSmData" + std::to_string(index + 1)) {
    txtSmData.MaxLength = 1;
  }
  Label lblSmStep;
  ComboBox comboMerei;
  TextBox txtSmData;
};

/// The sequence macros, one at a time.
struct FrmSqMcr : View {
  FrmSqMcr();
  Label lblSqMacro{*this, "lblSqMacro", 6503};
  Label lblSqMacroNo{*this, "lblSqMacroNo"};
  UpDown UpDownSmNo{*this, "UpDownSmNo", 1, 20};
  Label lblSmHolds{*this, "lblSmHolds"};
  CommandButton cmdSmCompare{*this, "cmdSmCompare", 5320};
  CommandButton cmdSmRestore{*this, "cmdSmRestore", 6489};
  RowArray<SmRow, 16> Rows{*this};
  Frame framCt{*this, "framCt", 5230};
  CommandButton cmdReadSMfromCt{*this, "cmdReadSMfromCt", 5200};
  CommandButton cmdWriteSMtoCt{*this, "cmdWriteSMtoCt", 5201};
  CommandButton cmdSmCTShogo{*this, "cmdSmCTShogo", 5202};
  Frame framFile{*this, "framFile", 5231};
  CommandButton cmdSmFileOpen{*this, "cmdSmFileOpen", 5204};
  CommandButton cmdSmFileSave{*this, "cmdSmFileSave", 5206};
  CommandButton cmdSmFileShogo{*this, "cmdSmFileShogo", 5207};
  Frame framPrint{*this, "framPrint", 6003};
  CommandButton cmdSMDispPrint{*this, "cmdSMDispPrint", 6004};
  CommandButton cmdSMFilePrint{*this, "cmdSMFilePrint", 6005};
  CommandButton cmdClose{*this, "cmdClose", 2202};
};

inline Standing<FrmSqMcr> frmSqMcr;

}  // namespace tr7
