#include "state/files_here.h"

#include <charconv>
#include <filesystem>
#include <functional>
#include <system_error>

#include "platform/doors.h"

namespace tr7 {
namespace {

constexpr std::size_t kMostBytes = 4u << 20;  // no file that is longer is read into a view

/// However the path was spelled.
std::u8string KeyOf(const std::string& path) {
  const std::u8string utf8(path.begin(), path.end());
  return std::filesystem::path(utf8).lexically_normal().u8string();
}

std::size_t HashOf(std::string_view bytes) { return std::hash<std::string_view>{}(bytes); }

}  // namespace

void NoteBytes(const std::string& path, std::string_view bytes) {
  FilesHere.Seen[KeyOf(path)] = HashOf(bytes);
}

void FileIsShown(const std::string& path) {
  const auto seen = FilesHere.Seen.find(KeyOf(path));
  if (seen != FilesHere.Seen.end()) FilesHere.Shown[seen->first] = seen->second;
}

std::string ShownMark(const std::string& path) {
  const auto shown = FilesHere.Shown.find(KeyOf(path));
  return shown == FilesHere.Shown.end() ? std::string() : std::to_string(shown->second);
}

void FileWasShown(const std::string& path, const std::string& mark) {
  std::size_t hash = 0;
  const auto read = std::from_chars(mark.data(), mark.data() + mark.size(), hash);
  if (read.ec == std::errc() && read.ptr == mark.data() + mark.size()) {
    FilesHere.Shown[KeyOf(path)] = hash;
  }
}

bool FileIsChangedOutside(const std::string& path) {
  const auto shown = FilesHere.Shown.find(KeyOf(path));
  if (shown == FilesHere.Shown.end()) return false;
  std::string bytes;
  const FileFault fault = doors.files->Read(path, kMostBytes, bytes);
  if (fault == FileFault::TooLarge) return true;
  return fault == FileFault::None && HashOf(bytes) != shown->second;
}

}  // namespace tr7
