#include "base/text_helpers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/variant.h"

namespace tr7 {
namespace {

TEST(TextHelpers, ValTakesTheLeadingNumber) {
  const std::pair<const char*, double> rows[] = {
      {"", 0},       {"abc", 0},  {" 1 2\t3 ", 123}, {"12abc", 12}, {"12.5.7", 12.5},
      {"-.5", -0.5}, {"- 7", -7}, {"+-7", 0},        {"5-3", 5},    {".", 0},
      {"1E3", 1},    {"0x10", 0}, {"inf", 0},        {"1,234", 1},  {"１２", 0}};
  for (const auto& [text, value] : rows) EXPECT_EQ(Val(text), value) << '[' << text << ']';
  EXPECT_EQ(Val("-" + std::string(400, '9')), std::numeric_limits<double>::lowest());
}

TEST(TextHelpers, NumbersAsText) {
  const std::tuple<double, std::string, std::string> rows[] = {
      {-0.0, "0", "0.000"},           {-5, "-5", "-5.000"},
      {0.1 + 0.2, "0.3", "0.300"},    {0.00001, "0.00001", "0.000"},
      {-0.0005, "-0.0005", "-0.001"}, {-0.0004, "-0.0004", "0.000"},
      {1.0005, "1.0005", "1.001"},    {99.9995, "99.9995", "100.000"},
      {std::nan(""), "0", "0.000"}};
  for (const auto& [value, plain, mm] : rows) {
    EXPECT_EQ(PlainDecimal(value), plain);
    EXPECT_EQ(Str(value), (plain[0] == '-' ? "" : " ") + plain);
    EXPECT_EQ(FormatMm(value), mm) << plain;
  }
  EXPECT_EQ(FormatMm(1e20), "100000000000000000000.000");
}

TEST(TextHelpers, FixedWidthFields) {
  const std::pair<std::string, const char*> rows[] = {
      {HexPad(10, 2), "0A"},   {HexPad(256, 2), "X"},    {HexPad(-1, 8), "X"},
      {DecPad(7, 3), "007"},   {DecPad(1000, 3), "X"},   {DecPad(-1, 3), "X"},
      {SpacePad(5, 3), "  5"}, {SpacePad(-5, 3), " -5"}, {SpacePad(1000, 3), "X"}};
  for (const auto& [field, text] : rows) EXPECT_EQ(field, text);
  EXPECT_EQ(RightAlignText("軸", 3), "  軸");
  EXPECT_EQ(RightAlignText("123456789", 8), "-1");
  EXPECT_EQ(HexValue("0aF"), 175);
  EXPECT_EQ(HexValue("7FFFFFFFFFFFFFFF"), std::numeric_limits<std::int64_t>::max());
  for (const char* bad : {"", " A", "-1", "G", "0x1", "FFFFFFFFFFFFFFFF"}) {
    EXPECT_EQ(HexValue(bad), -1) << bad;
  }
}

TEST(TextHelpers, Characters) {
  EXPECT_EQ(Trim("  a b\t\r\n"), "a b");
  EXPECT_EQ(CharCount("aあ😀"), 3);
  EXPECT_EQ(LeftChars("aあ😀b", 2), "aあ");
  EXPECT_EQ(LeftChars("ab", 9), "ab");
  EXPECT_EQ(LeftChars("ab", -1), "");
}

TEST(Variant, ReadsNumbersAndTextsAlike) {
  EXPECT_EQ(ValueOf(Variant(std::string(" 12mm"))), 12);
  EXPECT_EQ(ValueOf(Variant()), 0);
  EXPECT_EQ(TextOf(Variant(0.5)), "0.5");
}

}  // namespace
}  // namespace tr7
