#pragma once

#include "state/kept_work.h"

namespace tr7 {

/// How the position table is kept: the table as a position file, and what the grid shows over it.
KeepKind KeptPositions();

}  // namespace tr7
