#pragma once

namespace tr7 {

/// The frame's commands that the session owns: online and offline, the controller's mode and
/// version, the alarm's reset.
void InstallSessionMenus();

}  // namespace tr7
