#pragma once

#include "tests/fleet/voyage.h"

namespace tr7 {

/// What holds between any two flows: commands on, the line shut unless kept, lamp, menus and tabs
/// true, nothing sent while idle or after a refusal, no axis in motion.
void CheckRest(Voyage& voyage);

}  // namespace tr7
