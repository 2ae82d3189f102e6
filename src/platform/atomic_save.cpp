#include "platform/atomic_save.h"

#include <memory>

namespace tr7 {
namespace {

FileFault WriteNew(Files& files, const std::string& path, std::string_view bytes) {
  FileFault fault = FileFault::None;
  const std::unique_ptr<FileWriter> writer = files.Create(path, fault);
  if (!writer) return fault;
  fault = writer->Write(bytes);
  if (fault == FileFault::None) fault = writer->Flush();
  const FileFault closing = writer->Close();
  return fault == FileFault::None ? closing : fault;
}

}  // namespace

FileFault SaveAtomically(Files& files, const std::string& path, std::string_view bytes) {
  // What an earlier run left under this name, when the power went, is replaced.
  const std::string fresh = path + ".tr7-new";
  FileFault fault = WriteNew(files, fresh, bytes);
  if (fault == FileFault::None) fault = files.Rename(fresh, path);
  if (fault != FileFault::None && files.Exists(fresh)) files.Remove(fresh);
  return fault;
}

}  // namespace tr7
