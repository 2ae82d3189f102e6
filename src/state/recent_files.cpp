#include "state/recent_files.h"

#include <algorithm>

#include "state/settings.h"

namespace tr7 {
namespace {

/// "RecentFile3-1" is the newest program, for one.
std::string KeyOf(FileKind kind, int place) {
  return "RecentFile" + std::to_string(static_cast<int>(kind)) + "-" + std::to_string(place);
}

void Keep(FileKind kind, const std::vector<std::string>& paths) {
  for (int place = 1; place <= kRecentFiles; ++place) {
    const auto index = static_cast<std::size_t>(place - 1);
    PutSetting(KeyOf(kind, place), index < paths.size() ? paths[index] : std::string());
  }
}

}  // namespace

std::vector<std::string> RecentFiles(FileKind kind) {
  std::vector<std::string> paths;
  for (int place = 1; place <= kRecentFiles; ++place) {
    const std::string path = GetSetting(KeyOf(kind, place), "");
    if (!path.empty()) paths.push_back(path);
  }
  return paths;
}

void RememberFile(FileKind kind, const std::string& path) {
  if (kind == FileKind::Unknown) return;
  std::vector<std::string> paths = RecentFiles(kind);
  if (!paths.empty() && paths.front() == path) return;
  std::erase(paths, path);
  paths.insert(paths.begin(), path);
  Keep(kind, paths);
}

void ForgetFile(FileKind kind, const std::string& path) {
  std::vector<std::string> paths = RecentFiles(kind);
  if (std::erase(paths, path) > 0) Keep(kind, paths);
}

}  // namespace tr7
