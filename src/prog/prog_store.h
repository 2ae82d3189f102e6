#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/bool16.h"
#include "base/indexed_array.h"
#include "forms/frm_prog.h"
#include "prog/prog_step.h"

namespace tr7 {

/// One record of a check: the step and what is wrong with it.
struct ProgError {
  int step;
  std::string text;
};

/// A listing and its cursor as they stood before an edit.
struct ListingShot {
  std::vector<ProgCells> steps;
  int row, column;
  bool changed;  ///< neither a file nor the controller holds this
};

/// What belongs to the one program of a view. The text form is the view's listing, the master copy;
/// comments stand there alone. Step n stands at index n - 1.
struct ProgStore {
  std::vector<ProgStep> ProgDA;       ///< the listing's numeric form, by `TorikomiProg2DA`
  std::vector<ProgStep> ProgCtDA;     ///< what came last from the controller
  std::vector<ProgCells> ProgFileDA;  ///< what came last from a file
  std::int16_t ProgCopyNo = 0;        ///< program number of the view; 0: none yet
  Bool16 ProgChanged;                 ///< differs from what was last saved or written
  Bool16 ProgSyntaxNg;                ///< a check found errors, and none has been clean since
  Bool16 ProgCmdBad;                  ///< the command typed last is none
  std::vector<ProgError> ProgErrList;
  std::vector<ListingShot> Undo, Redo;  ///< the newest at the end
  std::string FilePath;                 ///< of the file that holds it, edits apart; empty: none
  std::string FileFault;                ///< why a file could not be read or saved
};

/// A program view: its controls and its program.
struct ProgView : FrmProg {
  using FrmProg::FrmProg;
  ProgStore Store;
};

/// What is known of the controller's programs, whichever view is open. `AppState.ProgStepsRead`
/// tells that it is.
struct ProgCtRecord {
  IndexedArray<std::int16_t, std::size_t{kPrograms} + 1> ProgStepCounts{};  ///< by program number
};

extern ProgCtRecord ProgCt;

}  // namespace tr7
