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

/// The axis mask by `AxisMuko` as the parameter write sends it ahead of the blocks: a form of its
/// own, which `WriteParaToCt` must follow.
Outcome WriteAxisSettingToCt();

/// What the form of `WriteAxisSettingToCt` leaves for the write behind it.
struct AxisSettingSentRecord {
  std::string Block0Before;  ///< data of block 0 as read; empty: nothing is pending
  std::string Block0Sent;    ///< the data that took its place
};

extern AxisSettingSentRecord AxisSettingSent;

/// The parameters that the controller is last known to hold: as read, or as written and stored.
struct ParaOfCtRecord {
  bool Known = false;
  int AxisMask = 0;  ///< axes whose rows are known: axis i has bit 1 << i
  ParamSetRecord Set;
};

extern ParaOfCtRecord ParaOfCt;

}  // namespace tr7
