#pragma once

namespace tr7 {

/// Sets the handlers of all views and the hooks.
void InstallViews();

}  // namespace tr7
