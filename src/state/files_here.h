#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace tr7 {

/// What stood in files, by path and as a hash of the bytes: how a save finds out that another
/// program has changed the file since.
struct FilesHereRecord {
  std::map<std::u8string, std::size_t> Seen;   ///< when this tool read or wrote the file last
  std::map<std::u8string, std::size_t> Shown;  ///< when what a view shows came in or was saved
};
inline FilesHereRecord FilesHere;

/// This tool has read or written the file.
void NoteBytes(const std::string& path, std::string_view bytes);

/// What was read from the file or written to it last is what its view shows from now on. A file
/// that is only looked at, to compare or to print, is none of these.
void FileIsShown(const std::string& path);

/// What `FileIsShown` has noted, for work that is kept beyond the end of the tool; empty: nothing.
std::string ShownMark(const std::string& path);
/// The file was a view's with this mark.
void FileWasShown(const std::string& path, const std::string& mark);

/// The file of a view holds other bytes by now. False also of one that is gone or is no view's.
[[nodiscard]] bool FileIsChangedOutside(const std::string& path);

}  // namespace tr7
