#include "base/code_page.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

#include "base/utf8.h"

extern const char tr7_res_cp932[];
extern const unsigned tr7_res_cp932_size;

namespace tr7 {
namespace {

// Half-width katakana stand in one byte.
constexpr unsigned kKanaFirst = 0xA1, kKanaLast = 0xDF;
constexpr char32_t kKanaCharacter = 0xFF61;

bool IsLead(unsigned byte) {
  return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

/// One for each code of two bytes, or for each character. 0: there is no such code or character.
using PairTable = std::vector<char16_t>;

/// A row is "+" or "-", tab, the first code in four hexadecimal digits, tab, the characters of
/// codes in a row. The codes of a "-" are read, never written.
template <typename Use>
void ForEachPair(std::string_view row, Use use) {
  if (row.size() < 8) return;
  unsigned code = 0;
  std::from_chars(row.data() + 2, row.data() + 6, code, 16);
  const std::string_view characters = row.substr(7);
  bool good = true;
  for (std::size_t at = 0; at < characters.size() && code < 0x10000; ++code) {
    use(static_cast<char16_t>(code), static_cast<char16_t>(TakeUtf8(characters, at, good)));
  }
}

template <typename Use>
PairTable MakeTable(std::string_view signs, Use use) {
  PairTable table(0x10000);
  std::string_view rest(tr7_res_cp932, tr7_res_cp932_size);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    if (signs.find(rest[0]) != std::string_view::npos) {
      ForEachPair(rest.substr(0, end),
                  [&](char16_t code, char16_t character) { use(table, code, character); });
    }
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return table;
}

char16_t CharacterOf(unsigned code) {
  static const PairTable table = MakeTable(
      "+-", [](PairTable& of, char16_t code, char16_t character) { of[code] = character; });
  return table[code];
}

/// Made when a text is written first; many a session reads only.
char16_t CodeOf(char32_t character) {
  static const PairTable table = MakeTable(
      "+", [](PairTable& of, char16_t code, char16_t character) { of[character] = code; });
  return character < table.size() ? table[character] : char16_t{0};
}

char32_t TakeShiftJis(std::string_view bytes, std::size_t& at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned first = byte(at++);
  if (first < 0x80) return first;
  if (first >= kKanaFirst && first <= kKanaLast) return kKanaCharacter + (first - kKanaFirst);
  if (!IsLead(first) || at == bytes.size()) return kBadCharacter;
  const unsigned second = byte(at);
  const char16_t character = CharacterOf(first << 8 | second);
  // An ASCII byte behind a stray lead byte stays itself, so that damage never eats a separator.
  if (character != 0 || second >= 0x80) ++at;
  return character != 0 ? character : kBadCharacter;
}

bool AppendShiftJis(std::string& bytes, char32_t character) {
  if (character < 0x80) {
    bytes += static_cast<char>(character);
    return true;
  }
  if (character >= kKanaCharacter && character <= kKanaCharacter + (kKanaLast - kKanaFirst)) {
    bytes += static_cast<char>(character - kKanaCharacter + kKanaFirst);
    return true;
  }
  const char16_t code = CodeOf(character);
  if (code == 0) return false;
  bytes += static_cast<char>(code >> 8);
  bytes += static_cast<char>(code & 0xFF);
  return true;
}

}  // namespace

DecodedText DecodeCodePage(int page, std::string_view bytes) {
  DecodedText result;
  result.utf8.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t begin = at;
    // Most bytes are themselves on every page.
    while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80) ++at;
    if (at > begin) {
      result.utf8.append(bytes, begin, at - begin);
      continue;
    }
    bool good = true;
    const char32_t character =
        page == kCodePageUtf8 ? TakeUtf8(bytes, at, good) : TakeShiftJis(bytes, at);
    // UTF-8 may hold U+FFFD itself; no code of 932 stands for it.
    if (page != kCodePageUtf8) good = character != kBadCharacter;
    if (!good && result.ok()) result.bad_at = begin;
    AppendUtf8(result.utf8, character);
  }
  return result;
}

EncodedText EncodeCodePage(int page, std::string_view utf8) {
  EncodedText result;
  result.bytes.reserve(utf8.size());
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t begin = at;
    bool good = true;
    const char32_t character = TakeUtf8(utf8, at, good);
    if (good && page == kCodePageUtf8) {
      AppendUtf8(result.bytes, character);
    } else if (!good || !AppendShiftJis(result.bytes, character)) {
      result.ok = false;
      result.bad_at = begin;
      AppendUtf8(result.bad_character, character);
      return result;
    }
  }
  return result;
}

}  // namespace tr7
