#include "ui/user_work_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <algorithm>
#include <chrono>
#include <set>
#include <string_view>

namespace tr7 {
namespace {

constexpr std::string_view kLock = ".lock", kKept = ".kept", kUnfinished = ".tr7-new";
constexpr int kMostTries = 100;

/// The name of the tool in front of its file's.
std::string ToolOf(const std::string& file) { return file.substr(0, file.find('.')); }

/// Process numbers come again; with the time they do not.
std::string NameOfThisTool(int attempt) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
  return std::to_string(getpid()) + "-" + std::to_string(ms + attempt);
}

}  // namespace

UserWorkFolder::~UserWorkFolder() {
  for (const auto& [tool, handle] : locks_) close(handle);
}

bool UserWorkFolder::Lock(const std::string& tool) {
  const std::string file = path_ + "/" + tool + std::string(kLock);
  const int handle = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (handle < 0) return false;
  if (flock(handle, LOCK_EX | LOCK_NB) == 0) {
    locks_[tool] = handle;
    return true;
  }
  close(handle);
  return false;
}

bool UserWorkFolder::BeginOwn() {
  if (!QDir().mkpath(QString::fromStdString(path_))) return false;
  // A start that looks for what is left may hold a fresh lock for a moment.
  for (int attempt = 0; attempt < kMostTries; ++attempt) {
    const std::string name = NameOfThisTool(attempt);
    if (!Lock(name)) continue;
    own_ = name;
    return true;
  }
  return false;
}

std::string UserWorkFolder::Own(const std::string& name) {
  if (own_.empty() && !BeginOwn()) return {};
  return path_ + "/" + own_ + "." + name + std::string(kKept);
}

std::vector<std::string> UserWorkFolder::NamesThere() const {
  std::vector<std::string> names;
  const QDir folder(QString::fromStdString(path_));
  for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
    names.push_back(name.toStdString());
  }
  return names;
}

std::vector<std::string> UserWorkFolder::FilesOf(const std::string& tool) const {
  std::vector<std::string> paths;
  for (const std::string& name : NamesThere()) {
    if (ToolOf(name) != tool) continue;
    const std::string path = path_ + "/" + name;
    if (name.ends_with(kUnfinished)) unlink(path.c_str());  // the power went at its save
    if (name.ends_with(kKept)) paths.push_back(path);
  }
  return paths;
}

std::vector<std::string> UserWorkFolder::TakeLeft() {
  std::set<std::string> tools;
  for (const std::string& name : NamesThere()) {
    if (name.ends_with(kLock) || name.ends_with(kKept)) tools.insert(ToolOf(name));
  }
  std::vector<std::string> left;
  for (const std::string& tool : tools) {
    if (locks_.contains(tool) || !Lock(tool)) continue;
    const std::vector<std::string> files = FilesOf(tool);
    left.insert(left.end(), files.begin(), files.end());
  }
  return left;
}

void UserWorkFolder::Leave() {
  for (const auto& [tool, handle] : locks_) {
    const std::string lock = path_ + "/" + tool + std::string(kLock);
    if (FilesOf(tool).empty()) unlink(lock.c_str());
    close(handle);
  }
  locks_.clear();
  own_.clear();
}

}  // namespace tr7
