#include "state/kept_work.h"

#include <cstdint>

#include "base/seq_file.h"
#include "base/text_helpers.h"

namespace tr7 {

std::function<void()> KeepUnsavedWork;

namespace {

constexpr int kLastMode = static_cast<int>(ForMode::Program);

/// Tells damage of the disk, not malice.
std::string HashOf(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return HexPad(static_cast<std::int64_t>(hash >> 32), 8) +
         HexPad(static_cast<std::int64_t>(hash & 0xFFFFFFFFu), 8);
}

}  // namespace

std::vector<KeepKind>& KeepKinds() {
  static std::vector<KeepKind> kinds;
  return kinds;
}

std::string BytesOfWork(const KeptWork& work) {
  SeqWriter content;
  content.Text(work.kind);
  content.Text(work.name);
  content.Number(static_cast<int>(work.mode));
  content.EndLine();
  content.Text(work.file);
  content.Text(work.screen);
  content.EndLine();
  content.Text(work.path);
  content.Text(work.mark);
  content.EndLine();
  SeqWriter head;
  head.Bare(HashOf(content.Result()));
  head.Text(work.when);
  head.EndLine();
  return head.Result() + content.Result();
}

std::optional<KeptWork> WorkOfBytes(std::string_view bytes) {
  const std::size_t head = bytes.find('\n');
  if (head == std::string_view::npos) return std::nullopt;
  const std::string_view content = bytes.substr(head + 1);
  SeqReader first{std::string(bytes.substr(0, head))};
  std::string hash;
  KeptWork work;
  if (!first.ReadText(hash) || !first.ReadText(work.when) || hash != HashOf(content)) {
    return std::nullopt;
  }
  SeqReader items{std::string(content)};
  int mode = 0;
  const bool read = items.ReadText(work.kind) && items.ReadText(work.name) &&
                    items.ReadInteger(0, kLastMode, mode) && items.ReadText(work.file) &&
                    items.ReadText(work.screen);
  if (!read) return std::nullopt;
  // An earlier version of the tool has kept them elsewhere, if at all.
  static_cast<void>(items.ReadText(work.path) && items.ReadText(work.mark));
  work.mode = static_cast<ForMode>(mode);
  return work;
}

}  // namespace tr7
