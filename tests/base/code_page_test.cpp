#include "base/code_page.h"

#include <gtest/gtest.h>

#include <tuple>

#include "base/utf8.h"

namespace tr7 {
namespace {

using namespace std::string_literals;

std::string FromShiftJis(std::string_view bytes) { return DecodeCodePage(932, bytes).utf8; }

TEST(CodePage, EveryCharacterComesBack) {
  int characters = 0;
  for (unsigned lead = 0x81; lead <= 0xFC; ++lead) {
    for (unsigned trail = 0; trail <= 0xFF; ++trail) {
      const std::string code{static_cast<char>(lead), static_cast<char>(trail)};
      const std::string text = FromShiftJis(code);
      std::size_t at = 0;
      bool good = true;
      const char32_t character = TakeUtf8(text, at, good);
      if (character == kBadCharacter || at != text.size()) continue;
      ++characters;
      const EncodedText encoded = EncodeCodePage(932, text);
      ASSERT_TRUE(encoded.ok) << text;
      ASSERT_EQ(FromShiftJis(encoded.bytes), text);
    }
  }
  EXPECT_EQ(characters, 9604);
}

TEST(CodePage, DamageCostsNoMoreThanItself) {
  const std::string bad = "\uFFFD";
  const std::tuple<int, std::string, std::string> rows[] = {
      {932, "a\x88\r\nb", "a" + bad + "\r\nb"},
      {932, "\x88\",\"x", bad + "\",\"x"},
      {932, "\x80\xA0\xFD\xFE\xFFz", bad + bad + bad + bad + bad + "z"},
      {932, "\x85\x9F\x41\xFC\xFC", bad + "A" + bad},
      {932, "\x81\0x\x81"s, bad + "\0x"s + bad},
      {65001, "軸😀\r\n", "軸😀\r\n"},
      {65001, "<\xC0\x80>", "<" + bad + bad + ">"},
      {65001, "<\xED\xA0\x80>", "<" + bad + bad + bad + ">"},
      {65001, "<\xE8\xBB>", "<" + bad + bad + ">"}};
  for (const auto& [page, bytes, text] : rows) EXPECT_EQ(DecodeCodePage(page, bytes).utf8, text);
}

}  // namespace
}  // namespace tr7
