#pragma once

#include "data/data_flows.h"

namespace tr7 {

/// The sequence macros, for the flows of whole tables.
const DataKind& SmKind();

}  // namespace tr7
