#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "platform/files.h"

namespace tr7 {

/// The computer's own files. Flushing reaches the disk itself: fsync on POSIX, which for a rename
/// includes the folder that holds the name, and _commit on Windows. A file that this user may not
/// write is not replaced, even where the folder would allow it.
class StdFiles : public Files {
 public:
  /// The program folder is the executable's own when list files stand there, else
  /// "../share/qv-tr7" beside it, where an installation puts them, else the folder that the build
  /// has named: the source tree's lists, or in a package where the package puts them.
  explicit StdFiles(const std::string& executable_folder);

  bool Exists(const std::string& path) const override;
  FileFault Read(const std::string& path, std::size_t limit, std::string& bytes) const override;
  std::unique_ptr<FileWriter> Create(const std::string& path, FileFault& fault) override;
  FileFault Rename(const std::string& from, const std::string& to) override;
  FileFault Remove(const std::string& path) override;
  std::string ProgramFolder() const override { return program_folder_; }

 private:
  std::string program_folder_;
};

}  // namespace tr7
