#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tr7 {

/// What went wrong with a file. `None` is success.
enum class FileFault { None, NotFound, NotPermitted, DiskFull, TooLarge, Other };

/// A new file being written. Destroying it closes it and keeps what was written.
class FileWriter {
 public:
  virtual ~FileWriter() = default;
  virtual FileFault Write(std::string_view bytes) = 0;
  /// Returns when the bytes are on the disk.
  virtual FileFault Flush() = 0;
  virtual FileFault Close() = 0;
};

/// The door to files, as bytes. Paths are UTF-8. Nothing here re-enters.
class Files {
 public:
  virtual ~Files() = default;
  virtual bool Exists(const std::string& path) const = 0;
  /// The whole file; `TooLarge` above `limit` bytes, without having read more than that.
  virtual FileFault Read(const std::string& path, std::size_t limit, std::string& bytes) const = 0;
  /// Starts a new file, replacing one of that name. Null with `fault` set when it cannot.
  virtual std::unique_ptr<FileWriter> Create(const std::string& path, FileFault& fault) = 0;
  /// Gives `from` the name `to` in one step, replacing what had it.
  virtual FileFault Rename(const std::string& from, const std::string& to) = 0;
  virtual FileFault Remove(const std::string& path) = 0;
  /// The folder of the program's list files, without a closing separator.
  virtual std::string ProgramFolder() const = 0;
};

}  // namespace tr7
