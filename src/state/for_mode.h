#pragma once

#include "base/msg_id.h"

namespace tr7 {

/// The mode of the controller that data are for.
enum class ForMode { Any, Positioner, Program };

/// The tool is in that mode now.
bool FitsMode(ForMode mode);
/// What the mode is called; none for `Any`.
MsgId ModeNameId(ForMode mode);

}  // namespace tr7
