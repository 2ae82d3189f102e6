#pragma once

#include "base/axes.h"
#include "state/app_state.h"

namespace tr7 {

/// The axes that are in use on the PC (not `AxisMuko`) as a mask: axis i has bit 1 << i.
inline int AxesInUseMask() { return MaskOfMuko(AppState.AxisMuko); }

/// The same as indexes 0 to 3, to walk over.
inline AxisList AxesInUse() { return AxisList(AxesInUseMask()); }

}  // namespace tr7
