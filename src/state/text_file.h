#pragma once

#include <cstddef>
#include <string>

#include "platform/files.h"

namespace tr7 {

/// Outcome of reading or saving a text file. `words` tells the reason in the user's language.
struct TextFileResult {
  bool ok = true;
  FileFault fault = FileFault::None;  ///< stays `None` on what the code page lacks
  int bad_line = 0;           ///< first line (from 1) with what is no character of the code page
  std::string bad_character;  ///< save: that character
  std::string words;          ///< empty when ok
};

/// The 8-bit code page of files: the setting `CodePage`, 932 by default; 65001 is UTF-8.
int FileCodePage();

inline constexpr std::size_t kListFileLimit = 4u << 20;  ///< bytes; longer files count as damaged

/// Reads a whole text file of the code page as UTF-8; on failure `utf8` stays as it was. A file
/// with bytes that are no character of the page is refused: a save would lose what they stand for.
TextFileResult ReadTextFile(const std::string& path, std::string& utf8,
                            std::size_t limit = kListFileLimit);

/// The same of a file that a user saves his work in: one without a byte is refused as empty.
TextFileResult ReadDataFile(const std::string& path, std::string& utf8,
                            std::size_t limit = kListFileLimit);

/// Saves to a new file in the same folder, flushes it to the disk, then gives it the old one's
/// name: a failed save leaves the old file whole and no new one behind, and a power cut leaves one
/// of the two whole under that name. A character that the code page does not hold refuses the save
/// before anything is written.
TextFileResult SaveTextFile(const std::string& path, const std::string& utf8);

/// What went wrong with a file, in the user's words.
std::string FileFaultWords(FileFault fault, const std::string& path);

/// The file's title: the path without its folders ("/" and "\\" both part them).
std::string FileTitle(const std::string& path);
/// Path of a list file in the program's own folder.
std::string ProgramFile(const std::string& name);
/// Reads a list file of that folder; on failure `words` tells the reason, and nothing of a file
/// that is not there: the messages of the lists say that themselves.
bool ReadListFile(const std::string& name, std::string& utf8, std::string& words);

}  // namespace tr7
