#include "state/text_file.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/code_page.h"
#include "platform/atomic_save.h"
#include "platform/doors.h"
#include "state/files_here.h"
#include "state/settings.h"
#include "state/text.h"

namespace tr7 {
namespace {

// Reasons in the user's words, with the file's title.
constexpr int kMsgNotFound = 5910;
constexpr int kMsgNotPermitted = 5911;
constexpr int kMsgDiskFull = 5912;
constexpr int kMsgTooLarge = 5913;
constexpr int kMsgOther = 5914;
constexpr int kMsgBadCharacter = 5915;
constexpr int kMsgNotOfCodePage = 6320;
constexpr int kMsgEmpty = 7196;

MsgId MessageOf(FileFault fault) {
  switch (fault) {
    case FileFault::NotFound:
      return kMsgNotFound;
    case FileFault::NotPermitted:
      return kMsgNotPermitted;
    case FileFault::DiskFull:
      return kMsgDiskFull;
    case FileFault::TooLarge:
      return kMsgTooLarge;
    default:
      return kMsgOther;
  }
}

TextFileResult ResultOf(FileFault fault, const std::string& path) {
  TextFileResult result;
  if (fault == FileFault::None) return result;
  result.ok = false;
  result.fault = fault;
  result.words = FileFaultWords(fault, path);
  return result;
}

int LineAt(std::string_view text, std::size_t at) {
  return 1 + static_cast<int>(
                 std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

}  // namespace

std::string FileFaultWords(FileFault fault, const std::string& path) {
  return Text(MessageOf(fault), FileTitle(path));
}

int FileCodePage() {
  return GetSettingNumber("CodePage", kCodePageShiftJis) == kCodePageUtf8 ? kCodePageUtf8
                                                                          : kCodePageShiftJis;
}

TextFileResult ReadTextFile(const std::string& path, std::string& utf8, std::size_t limit) {
  std::string bytes;
  TextFileResult result = ResultOf(doors.files->Read(path, limit, bytes), path);
  if (!result.ok) return result;
  NoteBytes(path, bytes);
  DecodedText decoded = DecodeCodePage(FileCodePage(), bytes);
  if (decoded.ok()) {
    utf8 = std::move(decoded.utf8);
    return result;
  }
  result.ok = false;
  result.bad_line = LineAt(bytes, decoded.bad_at);
  result.words = Text(kMsgNotOfCodePage, FileTitle(path), std::to_string(result.bad_line));
  return result;
}

TextFileResult ReadDataFile(const std::string& path, std::string& utf8, std::size_t limit) {
  TextFileResult result = ReadTextFile(path, utf8, limit);
  if (!result.ok || !utf8.empty()) return result;
  result.ok = false;
  result.words = Text(kMsgEmpty, FileTitle(path));
  return result;
}

TextFileResult SaveTextFile(const std::string& path, const std::string& utf8) {
  const EncodedText encoded = EncodeCodePage(FileCodePage(), utf8);
  TextFileResult result;
  if (encoded.ok) {
    result = ResultOf(SaveAtomically(*doors.files, path, encoded.bytes), path);
    if (result.ok) NoteBytes(path, encoded.bytes);
    return result;
  }
  result.ok = false;
  result.bad_line = LineAt(utf8, encoded.bad_at);
  result.bad_character = encoded.bad_character;
  result.words = Text(kMsgBadCharacter, std::to_string(result.bad_line), result.bad_character);
  return result;
}

std::string FileTitle(const std::string& path) {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

std::string ProgramFile(const std::string& name) {
  return doors.files->ProgramFolder() + "/" + name;
}

bool ReadListFile(const std::string& name, std::string& utf8, std::string& words) {
  const TextFileResult file = ReadTextFile(ProgramFile(name), utf8);
  words = file.fault == FileFault::NotFound ? std::string() : file.words;
  return file.ok;
}

}  // namespace tr7
