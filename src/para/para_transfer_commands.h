#pragma once

#include <string>

#include "para/param_set.h"
#include "steps/outcome.h"

namespace tr7 {

// The whole parameter memory, both ways. The user has been told of every failure.

/// Reads all blocks, those of axes not in use (`AxisMuko`) left out, into `ParaTable`, which holds
/// zeros for such axes. What it holds then fits `TakeParamTable`. `ParaTable` stays whole unless
/// all is done.
Outcome ReadParaFromCt();

/// Writes `ParamSet` and has the controller store it: all rows of the controller and of the live
/// axes (`IsLiveAxis`). The blocks are read first, so that what no row holds goes back as it was.
/// A row that its place cannot hold is named in a box, and nothing is written.
Outcome WriteParaToCt();

/// The same, with the axis mask by `AxisMuko` ahead of the blocks (`WriteAxisSettingToCt`). Nothing
/// is sent before every row is known to fit, and block 0 is put back where it would stay spoilt.
Outcome WriteAxesAndParaToCt();

/// The axis mask by `AxisMuko` in a form of its own, which spoils block 0 (`AxisSettingSent`): a
/// whole one must follow.
Outcome WriteAxisSettingToCt();

/// The parameters that the controller is last known to hold: as read, or as written and stored.
struct ParaOfCtRecord {
  bool Known = false;
  int AxisMask = 0;  ///< axes whose rows are known: axis i has bit 1 << i
  ParamSetRecord Set;
};

extern ParaOfCtRecord ParaOfCt;

}  // namespace tr7
