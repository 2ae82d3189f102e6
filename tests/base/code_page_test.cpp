#include "base/code_page.h"

#include <gtest/gtest.h>

#include "base/utf8.h"

namespace tr7 {
namespace {

using namespace std::string_literals;

std::string FromShiftJis(std::string_view bytes) { return DecodeCodePage(932, bytes).utf8; }

TEST(CodePage, KnownCharacters) {
  const struct {
    std::string bytes;
    const char* text;
  } rows[] = {{"", ""},
              {"QV-R7 \\~\r\n", "QV-R7 \\~\r\n"},
              {"\x88\xCA\x92\x75", "位置"},
              {"\x8E\xB2", "軸"},
              {"\x83\x5C", "ソ"},  // the second byte is a backslash elsewhere
              {"\x94\x5C", "能"},
              {"\xB1\xDF", "ｱﾟ"},
              {"\x81\x60", "～"},
              {"\x87\x40", "①"},
              {"\xFB\xFC", "髙"},
              {"\x95\x73\x96\xBE", "不明"},
              {"\x7F", "\x7F"}};
  for (const auto& row : rows) {
    EXPECT_EQ(FromShiftJis(row.bytes), row.text);
    const EncodedText encoded = EncodeCodePage(932, row.text);
    EXPECT_TRUE(encoded.ok);
    EXPECT_EQ(encoded.bytes, row.bytes) << row.text;
  }
}

TEST(CodePage, DuplicatesAreReadAndWrittenInTheirMainPlace) {
  EXPECT_EQ(FromShiftJis("\xFA\x4A\xED\x40"), "Ⅰ纊");  // both also stand elsewhere
  EXPECT_EQ(EncodeCodePage(932, "Ⅰ").bytes, "\x87\x54");
  EXPECT_EQ(EncodeCodePage(932, "纊").bytes, "\xFA\x5C");
  EXPECT_EQ(EncodeCodePage(932, "ⅰ").bytes, "\xFA\x40");
  EXPECT_EQ(FromShiftJis("\x81\xE0\x87\x90"), "≒≒");
  EXPECT_EQ(EncodeCodePage(932, "≒").bytes, "\x81\xE0");
}

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
  const struct {
    std::string bytes;
    std::string text;
  } rows[] = {{"\x88", bad},
              {"a\x88\r\nb", "a" + bad + "\r\nb"},
              {"\x88\",\"x", bad + "\",\"x"},
              {"\x80\xA0\xFD\xFE\xFFz", bad + bad + bad + bad + bad + "z"},
              {"\x85\x9F\x41", bad + "A"},
              {"\x81\x7F", bad + "\x7F"},
              {"\x81\0x"s, bad + "\0x"s},
              {"\xFC\xFC", bad}};
  for (const auto& row : rows) EXPECT_EQ(FromShiftJis(row.bytes), row.text);
}

TEST(CodePage, WritingStopsAtTheFirstMissingCharacter) {
  const struct {
    std::string text;
    std::size_t at;
    const char* character;
  } rows[] = {
      {"abc😀", 3, "😀"},        {"位置\n한글", 7, "한"},   {"\uFFFD", 0, "\uFFFD"},  {"é", 0, "é"},
      {"\u0080", 0, "\u0080"}, {"ok\xFFno", 2, "\uFFFD"}, {"\xE4\xBD", 0, "\uFFFD"}};
  for (const auto& row : rows) {
    const EncodedText encoded = EncodeCodePage(932, row.text);
    EXPECT_FALSE(encoded.ok) << row.text;
    EXPECT_EQ(encoded.bad_at, row.at) << row.text;
    EXPECT_EQ(encoded.bad_character, row.character);
  }
}

TEST(CodePage, Utf8PassesAndIsMended) {
  EXPECT_EQ(DecodeCodePage(65001, "軸😀\r\n").utf8, "軸😀\r\n");
  EXPECT_EQ(EncodeCodePage(65001, "軸😀").bytes, "軸😀");
  EXPECT_FALSE(EncodeCodePage(65001, "a\xC0\x80").ok);
  const struct {
    std::string bytes;
    int bad;  ///< characters replaced
  } rows[] = {{"\xC0\x80", 2},
              {"\xE0\x80\x80", 3},
              {"\xED\xA0\x80", 3},
              {"\xF4\x90\x80\x80", 4},
              {"\xF5", 1},
              {"\xE8\xBB", 2},
              {"\x80", 1},
              {"\xF0\x9F\x98", 3},
              {"\xF0\x82\x82\xAC", 4}};
  for (const auto& row : rows) {
    std::string expected = "<";
    for (int i = 0; i < row.bad; ++i) expected += "\uFFFD";
    EXPECT_EQ(DecodeCodePage(65001, "<" + row.bytes + ">").utf8, expected + ">");
  }
}

}  // namespace
}  // namespace tr7
