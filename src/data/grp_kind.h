#pragma once

#include "data/data_flows.h"

namespace tr7 {

/// The groups, for the flows of whole tables.
const DataKind& GrpKind();

}  // namespace tr7
