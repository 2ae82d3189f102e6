#pragma once

namespace tr7 {

/// `mnuContVersion`: goes online when needed and shows all versions.
void ContVersionMenu();

}  // namespace tr7
