#include "state/file_kind.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/seq_file.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr int kMsgAtLine = 6321;
constexpr int kMsgFileIs = 6322;
constexpr int kMsgKinds = 6323;  ///< the name of the first known kind; the others follow

constexpr int kMsgDamagedAt = 6332;

constexpr std::size_t kHeadItems = 5;
using Head = std::array<std::string, kHeadItems>;

Head HeadOf(const std::string& utf8) {
  constexpr std::size_t kHeadBytes = 400;
  SeqReader items(utf8.substr(0, kHeadBytes));
  Head head;
  for (std::string& item : head) {
    if (!items.ReadText(item)) break;
  }
  return head;
}

/// By the second item, where the first one names a controller.
FileKind KindOfData(const std::string& second) {
  constexpr struct {
    std::string_view word;
    FileKind kind;
  } kWords[] = {{"POS MODE", FileKind::Position},
                {"PRG MODE", FileKind::Position},
                {"PRM", FileKind::Parameter},
                {"Program", FileKind::Program},
                {"GRP", FileKind::Group},
                {"SM", FileKind::Macro},
                {"QV-STDPRM", FileKind::StandardList},
                {"NB-STDPRM", FileKind::StandardList},
                {"QV-CMNPRM", FileKind::CommonList}};
  for (const auto& row : kWords) {
    if (row.word == second) return row.kind;
  }
  // Position files of earlier days have a device there.
  const bool device = second.starts_with("QV-") || second.starts_with("NB-");
  return device ? FileKind::Position : FileKind::Unknown;
}

bool AreDigits(std::string_view text) {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Size, speed letter, separator and three digits of stroke.
bool IsModel(std::string_view item) {
  constexpr std::size_t kBehindSize = 5;
  if (item.size() != 7 && item.size() != 8) return false;
  const char speed = item[item.size() - kBehindSize];
  return speed >= 'A' && speed <= 'Z' && AreDigits(item.substr(item.size() - 3));
}

}  // namespace

FileKind KindOfFile(const std::string& utf8) {
  const Head head = HeadOf(utf8);
  if (head[0] == "QV-R7") return KindOfData(head[1]);
  if (!AreDigits(head[0])) return FileKind::Unknown;
  if (IsModel(head[1])) return FileKind::DeviceList;
  return head[3] == "MVP" && head[4] == "MVA" ? FileKind::CommandList : FileKind::Unknown;
}

std::string WhatFileIs(const std::string& path, const std::string& utf8) {
  const FileKind kind = KindOfFile(utf8);
  if (kind == FileKind::Unknown) return {};
  return Text(kMsgFileIs, FileTitle(path), Text(MsgId::At(kMsgKinds, static_cast<int>(kind) - 1)));
}

std::string ListFault(const std::string& name, const std::string& utf8, FileKind due, int line) {
  const FileKind kind = KindOfFile(utf8);
  if (kind != due && kind != FileKind::Unknown) return WhatFileIs(name, utf8);
  return Text(kMsgDamagedAt, std::to_string(line), name);
}

std::string AtLine(int line, const std::string& words) {
  return Text(kMsgAtLine, std::to_string(line), words);
}

}  // namespace tr7
