#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/work_folder.h"

namespace tr7 {

/// A folder of the user's own. Every tool that keeps something there has a lock file, which the
/// system frees when the process ends in whatever way: a lock that can be had is that of a tool
/// that runs no more, and whoever takes it has what that one left.
class UserWorkFolder : public WorkFolder {
 public:
  /// The folder is made when something is kept.
  explicit UserWorkFolder(std::string path) : path_(std::move(path)) {}
  ~UserWorkFolder() override;
  UserWorkFolder(const UserWorkFolder&) = delete;
  UserWorkFolder& operator=(const UserWorkFolder&) = delete;

  std::string Own(const std::string& name) override;
  std::vector<std::string> TakeLeft() override;
  void Leave() override;

 private:
  /// Takes the lock of a tool of this name; false where another one has it.
  bool Lock(const std::string& tool);
  bool BeginOwn();
  std::vector<std::string> NamesThere() const;
  std::vector<std::string> FilesOf(const std::string& tool) const;

  std::string path_;
  std::string own_;                   ///< the name of this tool; empty: none yet
  std::map<std::string, int> locks_;  ///< by tool: the handle that holds its lock
};

}  // namespace tr7
