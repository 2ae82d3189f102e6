#pragma once

namespace tr7 {

/// Fills the page that is on show from `GrpTable`.
void GrpShow();

/// Takes what stands in the boxes on show into `GrpTable`: also a box that has not been left yet.
void StoreShownGroups();

}  // namespace tr7
