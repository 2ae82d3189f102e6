#pragma once

#include <string>
#include <vector>

#include "state/file_kind.h"

namespace tr7 {

/// Paths that are kept of each kind at most.
inline constexpr int kRecentFiles = 10;

/// The files of a kind that were opened or saved last, the newest first. They stand in the
/// settings.
std::vector<std::string> RecentFiles(FileKind kind);

/// The file is the newest of its kind now. Files of no kind are not kept.
void RememberFile(FileKind kind, const std::string& path);
void ForgetFile(FileKind kind, const std::string& path);

}  // namespace tr7
