#pragma once

namespace tr7 {

/// Help, About.
void InstallAboutView();

}  // namespace tr7
