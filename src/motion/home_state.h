#pragma once

namespace tr7 {

/// The home lamps and words show `HomeDone`.
void ShowHomeState();

}  // namespace tr7
