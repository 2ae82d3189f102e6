#pragma once

#include "forms/view.h"

namespace tr7 {

/// Gives every control of the view its standing tool tip (`Control::Tip`). After the captions: the
/// tip of a table's field names its row and its column.
void ApplyViewTips(View& view);

}  // namespace tr7
