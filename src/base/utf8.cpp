#include "base/utf8.h"

namespace tr7 {
namespace {

bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

}  // namespace

char32_t TakeUtf8(std::string_view utf8, std::size_t& at, bool& good) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char first = byte(at);
  good = true;
  std::size_t length = 0;
  char32_t character = 0;
  if (first < 0x80) {
    ++at;
    return first;
  }
  if (first >= 0xC2 && first <= 0xDF) {
    length = 2;
    character = first & 0x1Fu;
  } else if (first >= 0xE0 && first <= 0xEF) {
    length = 3;
    character = first & 0x0Fu;
  } else if (first >= 0xF0 && first <= 0xF4) {
    length = 4;
    character = first & 0x07u;
  }
  bool whole = length != 0 && utf8.size() - at >= length;
  for (std::size_t i = 1; whole && i < length; ++i) {
    whole = (byte(at + i) & 0xC0) == 0x80;
    character = character << 6 | (byte(at + i) & 0x3Fu);
  }
  const bool shortest = length < 3 || character >= (length == 3 ? 0x800u : 0x10000u);
  if (!whole || !shortest || IsSurrogate(character) || character > 0x10FFFF) {
    good = false;
    ++at;
    return kBadCharacter;
  }
  at += length;
  return character;
}

void AppendUtf8(std::string& utf8, char32_t character) {
  const auto add = [&](char32_t byte) { utf8 += static_cast<char>(byte); };
  const auto rest = [&](int shift) { add(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0 | character >> 6);
    rest(0);
  } else if (character < 0x10000) {
    add(0xE0 | character >> 12);
    rest(6);
    rest(0);
  } else {
    add(0xF0 | character >> 18);
    rest(12);
    rest(6);
    rest(0);
  }
}

}  // namespace tr7
