#pragma once

#include <string>

#include "forms/grid.h"

namespace tr7 {

/// A program as a listing, with the errors of its last check under it. It exists in numbers: one
/// record for each open program, all of one layout.
struct FrmProg : View {
  /// `number` tells the records apart.
  explicit FrmProg(int number);

  Frame framController{*this, "framController", 5230};
  CommandButton cmdProgWrite{*this, "cmdProgWrite", 5201};
  CommandButton cmdProgVerifyCt{*this, "cmdProgVerifyCt", 5202};
  Frame framFile{*this, "framFile", 5231};
  CommandButton cmdProgSaveAs{*this, "cmdProgSaveAs", 5206};
  CommandButton cmdProgCompare{*this, "cmdProgCompare", 5320};
  CommandButton cmdProgPrint{*this, "cmdProgPrint", 5208};
  Frame framEdit{*this, "framEdit", 5232};
  CommandButton cmdInsLineProg{*this, "cmdInsLineProg", 5209};
  CommandButton cmdDelLineProg{*this, "cmdDelLineProg", 5210};
  CommandButton cmdProgLineCopy{*this, "cmdProgLineCopy", 5211};
  CommandButton cmdProgLinePaste{*this, "cmdProgLinePaste", 5212};
  CommandButton cmdProgCheck{*this, "cmdProgCheck", 5213};

  ListBox List1{*this, "List1"};                 ///< command names, popped up at a command cell
  Grid flgdProg{*this, "flgdProg", 2, 7, 1, 1};  ///< row n is step n
  Grid flgdPrgErr{*this, "flgdPrgErr", 11, 3, 1, 1};
  CommandButton cmdCloseSyntaxErr{*this, "cmdCloseSyntaxErr", 2202};
  bool ErrPaneIsOpen = false;
};

}  // namespace tr7
