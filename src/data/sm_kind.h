#pragma once

#include "data/data_flows.h"

namespace tr7 {

/// The sequence macros, for the flows of whole tables.
const DataKind& SmKind();

/// `cmdSmCompare`.
void CompareMacros();

}  // namespace tr7
