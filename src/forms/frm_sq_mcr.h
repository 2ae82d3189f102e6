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
    lblSmStep.Caption = std::to_string(index + 1) + ".";
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
  CommandButton cmdSmRestore{*this, "cmdSmRestore"};
  RowArray<SmRow, 16> Rows{*this};
  Frame framCt{*this, "framCt", 6473};
  CommandButton cmdReadSMfromCt{*this, "cmdReadSMfromCt", 6474};
  CommandButton cmdWriteSMtoCt{*this, "cmdWriteSMtoCt", 6475};
  CommandButton cmdSmCTShogo{*this, "cmdSmCTShogo", 6476};
  Frame framFile{*this, "framFile", 6477};
  CommandButton cmdSmFileOpen{*this, "cmdSmFileOpen", 6478};
  CommandButton cmdSmFileSave{*this, "cmdSmFileSave", 6479};
  CommandButton cmdSmFileShogo{*this, "cmdSmFileShogo", 6480};
  Frame framPrint{*this, "framPrint", 6481};
  CommandButton cmdSMDispPrint{*this, "cmdSMDispPrint", 6482};
  CommandButton cmdSMFilePrint{*this, "cmdSMFilePrint", 6483};
  CommandButton cmdClose{*this, "cmdClose", 2202};
};

inline Standing<FrmSqMcr> frmSqMcr;

}  // namespace tr7
