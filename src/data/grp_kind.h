#pragma once

#include "data/data_flows.h"

namespace tr7 {

/// The groups, for the flows of whole tables.
const DataKind& GrpKind();

/// `cmdGrpCompare`.
void CompareGroups();

}  // namespace tr7
