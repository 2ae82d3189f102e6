#pragma once

#include "data/grp_table.h"

namespace tr7 {

/// Fills the page that is on show from `GrpTable`.
void GrpShow();

/// Turns to the first group that the check refuses and puts the focus on it; nothing without one.
void ShowFirstBadGroup();

/// `GrpTable` with what stands in the boxes on show: also in one that has not been left yet.
GrpTableRecord GroupsOnScreen();
/// Takes what stands in the boxes on show into `GrpTable`.
void StoreShownGroups();

}  // namespace tr7
