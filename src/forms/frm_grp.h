#pragma once

#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/option_group.h"
#include "forms/row_array.h"

namespace tr7 {

inline constexpr int kGrpPageRows = 33;  ///< groups on show at a time

/// One group on show.
struct GrpRow {
  GrpRow(View& owner, std::size_t index)
      : lblGrpNo(owner, "lblGrpNo" + std::to_string(index + 1)),
        txtGrpStartNo(owner, "txtGrpStartNo" + std::to_string(index + 1)),
        txtGrpEndNo(owner, "txtGrpEndNo" + std::to_string(index + 1)),
        lblGrpCover(owner, "lblGrpCover" + std::to_string(index + 1)) {
    for (TextBox* box : {&txtGrpStartNo, &txtGrpEndNo}) {
      box->MaxLength = 3;
      box->AllowedChars = "0123456789";
    }
  }
  Label lblGrpNo;
  TextBox txtGrpStartNo, txtGrpEndNo;
  Label lblGrpCover;  ///< which positions of the table it covers
};

/// What stands over the columns of a third of the page.
struct GrpHead {
  GrpHead(View& owner, std::size_t index)
      : lblGrpStart(owner, "lblGrpStart" + std::to_string(index + 1), 6505),
        lblGrpEnd(owner, "lblGrpEnd" + std::to_string(index + 1), 6506) {}
  Label lblGrpStart, lblGrpEnd;
};

/// The groups: three pages of 33.
struct FrmGrp : View {
  FrmGrp();
  OptionGroup<3> optGrpNo{*this, "optGrpNo", 1, {6470, 6471, 6472}};
  CommandButton cmdGrpCompare{*this, "cmdGrpCompare", 5320};
  CommandButton cmdGrpRestore{*this, "cmdGrpRestore", 6489};
  RowArray<GrpHead, 3> Heads{*this};
  RowArray<GrpRow, kGrpPageRows> Rows{*this};
  Frame framCt{*this, "framCt", 5230};
  CommandButton cmdReadGrp{*this, "cmdReadGrp", 5200};
  CommandButton cmdWriteGrp{*this, "cmdWriteGrp", 5201};
  CommandButton cmdGrpCtVerify{*this, "cmdGrpCtVerify", 5202};
  Frame framFile{*this, "framFile", 5231};
  CommandButton cmdGrpFileOpen{*this, "cmdGrpFileOpen", 5204};
  CommandButton cmdGrpFileSave{*this, "cmdGrpFileSave", 5206};
  CommandButton cmdGrpFileVerify{*this, "cmdGrpFileVerify", 5207};
  Frame framPrint{*this, "framPrint", 6003};
  CommandButton cmdGrpDataPrint{*this, "cmdGrpDataPrint", 6004};
  CommandButton cmdGrpFilePrint{*this, "cmdGrpFilePrint", 6005};
  CommandButton cmdClose{*this, "cmdClose", 2202};

  int ShownPage = 0;  ///< 0 to 2; it may lag behind the options while their click is on its way
};

inline Standing<FrmGrp> frmGrp;

}  // namespace tr7
