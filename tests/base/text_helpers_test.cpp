#include "base/text_helpers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/variant.h"

namespace tr7 {
namespace {

TEST(TextHelpers, ValTakesTheLeadingNumber) {
  const struct {
    const char* text;
    double value;
  } rows[] = {{"", 0},       {"   ", 0},       {"abc", 0},   {"12", 12},    {" 1 2\t3 ", 123},
              {"12abc", 12}, {"12.5.7", 12.5}, {".5", 0.5},  {"-.5", -0.5}, {"- 7", -7},
              {"+7", 7},     {"+-7", 0},       {"5-3", 5},   {"-", 0},      {".", 0},
              {"1E3", 1},    {"&H10", 0},      {"0x10", 0},  {"inf", 0},    {"nan", 0},
              {"1,234", 1},  {"   0.000", 0},  {"1\n2", 12}, {"１２", 0}};
  for (const auto& row : rows) EXPECT_EQ(Val(row.text), row.value) << '[' << row.text << ']';
  EXPECT_EQ(Val(std::string_view("1\0002", 3)), 1);
}

TEST(TextHelpers, ValOfANumberBeyondADouble) {
  const std::string huge(400, '9');
  EXPECT_EQ(Val(huge), std::numeric_limits<double>::max());
  EXPECT_EQ(Val("-" + huge), std::numeric_limits<double>::lowest());
  EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
}

TEST(TextHelpers, NumbersAsText) {
  const struct {
    double value;
    const char* plain;
    const char* str;
    const char* mm;
  } rows[] = {
      {0, "0", " 0", "0.000"},
      {-0.0, "0", " 0", "0.000"},
      {30, "30", " 30", "30.000"},
      {-5, "-5", "-5", "-5.000"},
      {0.1 + 0.2, "0.3", " 0.3", "0.300"},
      {1200, "1200", " 1200", "1200.000"},
      {262143, "262143", " 262143", "262143.000"},
      {1e20, "100000000000000000000", " 100000000000000000000", "100000000000000000000.000"},
      {0.00001, "0.00001", " 0.00001", "0.000"},
      {0.0005, "0.0005", " 0.0005", "0.001"},
      {-0.0005, "-0.0005", "-0.0005", "-0.001"},
      {-0.0004, "-0.0004", "-0.0004", "0.000"},
      {0.00049, "0.00049", " 0.00049", "0.000"},
      {1.0005, "1.0005", " 1.0005", "1.001"},
      {99.9995, "99.9995", " 99.9995", "100.000"},
      {0.9996, "0.9996", " 0.9996", "1.000"},
      {12.34567, "12.34567", " 12.34567", "12.346"},
      {std::nan(""), "0", " 0", "0.000"},
      {std::numeric_limits<double>::infinity(), "0", " 0", "0.000"}};
  for (const auto& row : rows) {
    EXPECT_EQ(PlainDecimal(row.value), row.plain);
    EXPECT_EQ(Str(row.value), row.str);
    EXPECT_EQ(FormatMm(row.value), row.mm) << row.plain;
  }
}

TEST(TextHelpers, OneDecimalRoundsHalvesAwayFromZero) {
  const struct {
    double value, rounded;
  } rows[] = {{13333.05, 13333.1}, {13333.04, 13333}, {13333.3, 13333.3}, {0.05, 0.1},
              {0.04, 0},           {-0.05, -0.1},     {9.95, 10},         {99999.95, 100000}};
  for (const auto& row : rows) EXPECT_EQ(RoundToOneDecimal(row.value), row.rounded) << row.value;
}

TEST(TextHelpers, FixedWidthFields) {
  EXPECT_EQ(HexPad(10, 2), "0A");
  EXPECT_EQ(HexPad(255, 2), "FF");
  EXPECT_EQ(HexPad(256, 2), "X");
  EXPECT_EQ(HexPad(0, 5), "00000");
  EXPECT_EQ(HexPad(-1, 8), "X");
  EXPECT_EQ(DecPad(7, 3), "007");
  EXPECT_EQ(DecPad(1000, 3), "X");
  EXPECT_EQ(DecPad(-1, 3), "X");
  EXPECT_EQ(SpacePad(100, 3), "100");
  EXPECT_EQ(SpacePad(1000, 3), "X");
  EXPECT_EQ(SpacePad(5, 3), "  5");
  EXPECT_EQ(SpacePad(-5, 3), " -5");
  EXPECT_EQ(SpacePad(5, 0), "X");
  EXPECT_EQ(RightAlignText("0.000", 8), "   0.000");
  EXPECT_EQ(RightAlignText("12345678", 8), "12345678");
  EXPECT_EQ(RightAlignText("123456789", 8), "-1");
  EXPECT_EQ(RightAlignText("", 0), "");
  EXPECT_EQ(RightAlignText("軸", 3), "  軸");
  EXPECT_EQ(RightAlignText("", -1), "-1");
}

TEST(TextHelpers, HexFieldsBack) {
  EXPECT_EQ(HexValue("0A"), 10);
  EXPECT_EQ(HexValue("ff"), 255);
  EXPECT_EQ(HexValue("7FFFFFFFFFFFFFFF"), std::numeric_limits<std::int64_t>::max());
  for (const char* bad : {"", " A", "-1", "+1", "G", "0x1", "1 ", "FFFFFFFFFFFFFFFF"}) {
    EXPECT_EQ(HexValue(bad), -1) << bad;
  }
}

TEST(TextHelpers, Characters) {
  EXPECT_EQ(Trim("  a b\t\r\n"), "a b");
  EXPECT_EQ(Trim(" \t"), "");
  EXPECT_EQ(CharCount("aあ😀"), 3);
  EXPECT_EQ(LeftChars("aあ😀b", 2), "aあ");
  EXPECT_EQ(LeftChars("aあ😀b", 3), "aあ😀");
  EXPECT_EQ(LeftChars("ab", 9), "ab");
  EXPECT_EQ(LeftChars("ab", 0), "");
  EXPECT_EQ(LeftChars("ab", -1), "");
}

TEST(Variant, ReadsNumbersAndTextsAlike) {
  EXPECT_EQ(ValueOf(Variant(30.0)), 30);
  EXPECT_EQ(ValueOf(Variant(std::string(" 12mm"))), 12);
  EXPECT_EQ(ValueOf(Variant(std::string())), 0);
  EXPECT_EQ(ValueOf(Variant()), 0);
  EXPECT_EQ(TextOf(Variant(0.5)), "0.5");
  EXPECT_EQ(TextOf(Variant(std::string(" 28"))), " 28");
}

}  // namespace
}  // namespace tr7
