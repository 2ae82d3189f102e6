#include "platform/std_files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace tr7 {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string Utf8Of(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return std::string(text.begin(), text.end());
}

FileFault FaultOf(const std::error_code& error) {
  if (!error) return FileFault::None;
  if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory) {
    return FileFault::NotFound;
  }
  if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
      error == std::errc::read_only_file_system) {
    return FileFault::NotPermitted;
  }
  if (error == std::errc::no_space_on_device) return FileFault::DiskFull;
#ifdef EDQUOT
  if (error.value() == EDQUOT) return FileFault::DiskFull;
#endif
  if (error == std::errc::file_too_large) return FileFault::TooLarge;
  return FileFault::Other;
}

FileFault LastFault() {
  const int number = errno;
  if (number == 0) return FileFault::Other;
  return FaultOf(std::error_code(number, std::generic_category()));
}

// What the standard library does not offer: names in Unicode on Windows, reaching the disk, and
// asking whether a file may be written.
#ifdef _WIN32
std::FILE* OpenFile(const fs::path& path, bool write) {
  return _wfopen(path.c_str(), write ? L"wb" : L"rb");
}
bool ReachDisk(std::FILE* file) { return _commit(_fileno(file)) == 0; }
void ReachDiskWithFolder(const fs::path&) {}
bool MayWrite(const fs::path& path) { return _waccess(path.c_str(), 2) == 0; }
#else
std::FILE* OpenFile(const fs::path& path, bool write) {
  return std::fopen(path.c_str(), write ? "wb" : "rb");
}
bool ReachDisk(std::FILE* file) { return fsync(fileno(file)) == 0; }
/// Some file systems cannot flush a folder; the new name is then as safe as they make it.
void ReachDiskWithFolder(const fs::path& path) {
  const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  fsync(handle);
  close(handle);
}
bool MayWrite(const fs::path& path) { return access(path.c_str(), W_OK) == 0; }
#endif

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenedFile = std::unique_ptr<std::FILE, CloseFile>;

class StdWriter : public FileWriter {
 public:
  explicit StdWriter(OpenedFile file) : file_(std::move(file)) {}

  FileFault Write(std::string_view bytes) override {
    if (!file_) return FileFault::Other;
    errno = 0;
    const std::size_t written = std::fwrite(bytes.data(), 1, bytes.size(), file_.get());
    return written == bytes.size() ? FileFault::None : LastFault();
  }
  FileFault Flush() override {
    if (!file_) return FileFault::Other;
    errno = 0;
    const bool good = std::fflush(file_.get()) == 0 && ReachDisk(file_.get());
    return good ? FileFault::None : LastFault();
  }
  FileFault Close() override {
    if (!file_) return FileFault::None;
    errno = 0;
    return std::fclose(file_.release()) == 0 ? FileFault::None : LastFault();
  }

 private:
  OpenedFile file_;
};

bool HoldsLists(const fs::path& folder) {
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (entry->path().extension() == ".lst") return true;
  }
  return false;
}

fs::path FindProgramFolder(const fs::path& executable_folder) {
  if (HoldsLists(executable_folder)) return executable_folder;
  const fs::path installed = executable_folder / ".." / "share" / "qv-tr7";
  if (HoldsLists(installed)) return installed.lexically_normal();
  return fs::path(TR7_SOURCE_LISTS);
}

std::string WithoutClosingSeparator(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

}  // namespace

StdFiles::StdFiles(const std::string& executable_folder)
    : program_folder_(
          WithoutClosingSeparator(Utf8Of(FindProgramFolder(PathOf(executable_folder))))) {}

bool StdFiles::Exists(const std::string& path) const {
  std::error_code error;
  return fs::exists(PathOf(path), error);
}

FileFault StdFiles::Read(const std::string& path, std::size_t limit, std::string& bytes) const {
  std::error_code error;
  const fs::file_status status = fs::status(PathOf(path), error);
  if (!fs::exists(status)) return error ? FaultOf(error) : FileFault::NotFound;
  if (!fs::is_regular_file(status)) return FileFault::Other;
  errno = 0;
  const OpenedFile file(OpenFile(PathOf(path), false));
  if (!file) return LastFault();
  std::string content;
  std::array<char, 64 * 1024> block;
  while (content.size() <= limit) {
    const std::size_t room = limit - content.size();
    // One byte beyond the limit tells that the file is longer.
    const std::size_t want = room < block.size() ? room + 1 : block.size();
    const std::size_t got = std::fread(block.data(), 1, want, file.get());
    content.append(block.data(), got);
    if (got < want) break;
  }
  if (std::ferror(file.get()) != 0) return LastFault();
  if (content.size() > limit) return FileFault::TooLarge;
  bytes = std::move(content);
  return FileFault::None;
}

std::unique_ptr<FileWriter> StdFiles::Create(const std::string& path, FileFault& fault) {
  errno = 0;
  OpenedFile file(OpenFile(PathOf(path), true));
  fault = file ? FileFault::None : LastFault();
  if (!file) return nullptr;
  return std::make_unique<StdWriter>(std::move(file));
}

FileFault StdFiles::Rename(const std::string& from, const std::string& to) {
  const fs::path target = PathOf(to);
  std::error_code error;
  if (fs::exists(target, error) && !MayWrite(target)) return FileFault::NotPermitted;
  fs::rename(PathOf(from), target, error);
  if (error) return FaultOf(error);
  ReachDiskWithFolder(target);
  return FileFault::None;
}

FileFault StdFiles::Remove(const std::string& path) {
  std::error_code error;
  if (fs::remove(PathOf(path), error)) return FileFault::None;
  return error ? FaultOf(error) : FileFault::NotFound;
}

}  // namespace tr7
