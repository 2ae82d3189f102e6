#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace tr7 {

/// Files in memory, with faults on demand. Primitive calls are `Read`, `Create`, `Write`, `Flush`,
/// `Close`, `Rename` and `Remove`; they are counted from 1. As on a disk, names change at once
/// and bytes are safe only once they are flushed. Writers must not outlive the object.
class MemoryFiles : public Files {
 public:
  bool Exists(const std::string& path) const override;
  FileFault Read(const std::string& path, std::size_t limit, std::string& bytes) const override;
  std::unique_ptr<FileWriter> Create(const std::string& path, FileFault& fault) override;
  FileFault Rename(const std::string& from, const std::string& to) override;
  FileFault Remove(const std::string& path) override;
  std::string ProgramFolder() const override { return program_folder; }

  /// Puts a file there, safe on the disk; counts as no call.
  void Put(const std::string& path, const std::string& bytes);
  /// The file's content, or nothing when there is none; counts as no call.
  std::optional<std::string> Content(const std::string& path) const;
  std::vector<std::string> Paths() const;

  /// The call-th primitive call from now on (1: the next) fails with `fault`. A failing `Write`
  /// keeps half of its bytes.
  void FailAt(int call, FileFault fault);
  /// The power goes at the call-th primitive call from now on: this one and all later ones do
  /// nothing, and bytes that were not flushed are lost.
  void PowerCutAt(int call);
  /// Ends the power cut and takes back faults that have not struck.
  void PowerOn();
  int Calls() const { return calls_; }

  std::string program_folder = "/program";
  bool read_only = false;  ///< nothing may be created, renamed or removed

 private:
  struct Node {
    std::string bytes;
    std::size_t safe = 0;  ///< bytes in front that a power cut leaves
  };
  class Writer;

  /// Counts a primitive call; the fault that it meets.
  FileFault Enter() const;

  mutable std::map<std::string, std::shared_ptr<Node>> nodes_;
  mutable int calls_ = 0;
  mutable bool power_ = true;
  int fail_at_ = 0;
  FileFault fail_with_ = FileFault::None;
  int power_cut_at_ = 0;
};

}  // namespace tr7
