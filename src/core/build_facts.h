#pragma once

#include <string>

namespace tr7 {

/// The commit that this was built from; empty where the build does not know.
std::string BuildRevision();
/// The day of that commit, "2026-01-31": the same sources say the same.
std::string BuildDate();

}  // namespace tr7
