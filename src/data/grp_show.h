#pragma once

namespace tr7 {

/// Fills the page that is on show from `GrpTable`.
void GrpShow();

/// Turns to the first group that the check refuses and puts the focus on it; nothing without one.
void ShowFirstBadGroup();

/// Takes what stands in the boxes on show into `GrpTable`: also a box that has not been left yet.
void StoreShownGroups();

}  // namespace tr7
