#include "base/seq_file.h"

#include <gtest/gtest.h>

#include <limits>

namespace tr7 {
namespace {

using namespace std::string_literals;

/// All items up to the first refusal; "!" behind them when items were left then.
std::string AllTexts(const std::string& file) {
  SeqReader reader(file);
  std::string all;
  while (!reader.AtEnd()) {
    std::string item;
    if (!reader.ReadText(item)) return all + "!";
    all += "[" + item + "]";
  }
  std::string item;
  EXPECT_FALSE(reader.ReadText(item));
  return all;
}

TEST(SeqReader, ItemsHoweverSpreadOverLines) {
  const struct {
    std::string file;
    std::string items;
  } rows[] = {
      {"", ""},
      {"\r\n \r\n", ""},
      {"a,b\r\nc\r\n", "[a][b][c]"},
      {"a\nb\rc", "[a][b][c]"},
      {"a\r\n\r\n\r\n", "[a]"},
      {"a\r\n\r\nb", "[a][][b]"},
      {"a,,b", "[a][][b]"},
      {"a,\r\n", "[a][]"},
      {",", "[][]"},
      {"\xEF\xBB\xBF\"a\"", "[a]"},
      {"  a b ,\t\" 28\" , 7\r\n", "[a b][ 28][7]"},
      {"\"a,b\r\nc\",d", "[a,b\r\nc][d]"},
      {"\"say \"\"go\"\"\",\"\"", "[say \"go\"][]"},
      {"\"\"\"\"", "[\"]"},
      {"a\"b\"c,d", "[a\"b\"c][d]"},
      {"a,\"left open\r\nb,c", "[a]!"},
      {"\"a\"b,c", "!"},
      {"\"a\" \"b\",c", "!"},
      {"\"", "!"},
      {"a\0b,\"\0\",c"s, "[a\0b][\0][c]"s},
      {"\x81\xFF,b", "[\x81\xFF][b]"},
  };
  for (const auto& row : rows) EXPECT_EQ(AllTexts(row.file), row.items) << row.file;
}

TEST(SeqReader, ADamagedQuoteEndsTheReadingForGood) {
  SeqReader reader("\"a\"b,1,2,3");
  std::string text = "kept";
  double number = 7;
  EXPECT_FALSE(reader.ReadText(text));
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_FALSE(reader.ReadNumber(number));
  EXPECT_EQ(text, "kept");
  EXPECT_EQ(number, 7);
}

TEST(SeqReader, Numbers) {
  const struct {
    std::string item;
    bool good;
    double value;
  } rows[] = {{"12", true, 12},       {" -0.5 ", true, -0.5}, {"+3", true, 3},
              {".5", true, 0.5},      {"5.", true, 5},        {"1E3", true, 1000},
              {"\" 12 \"", true, 12}, {"\"\"", true, 0},      {" ,", true, 0},
              {"12a", false, 0},      {"1 2", false, 0},      {"inf", false, 0},
              {"nan", false, 0},      {"-nan", false, 0},     {"0x10", false, 0},
              {"1e999", false, 0},    {"+-3", false, 0},      {"--3", false, 0},
              {"-", false, 0},        {"#TRUE#", false, 0},   {"1\0"s, false, 0}};
  for (const auto& row : rows) {
    SeqReader reader(row.item);
    double value = 77;
    EXPECT_EQ(reader.ReadNumber(value), row.good) << row.item;
    EXPECT_EQ(value, row.good ? row.value : 77) << row.item;
  }
}

TEST(SeqReader, ANonNumberIsConsumed) {
  SeqReader reader("x,2");
  double value = 0;
  EXPECT_FALSE(reader.ReadNumber(value));
  EXPECT_TRUE(reader.ReadNumber(value));
  EXPECT_EQ(value, 2);
}

TEST(SeqReader, IntegersWithinTheirRange) {
  const struct {
    const char* item;
    bool good;
  } rows[] = {{"0", true},    {"41", true},     {"-1", false},          {"42", false},
              {"1.5", false}, {"1e300", false}, {"99999999999", false}, {"4.0", true}};
  for (const auto& row : rows) {
    SeqReader reader(row.item);
    int value = -7;
    EXPECT_EQ(reader.ReadInteger(0, 41, value), row.good) << row.item;
    EXPECT_EQ(value == -7, !row.good) << row.item;
  }
}

TEST(SeqReader, ItemsKeepTheirKind) {
  SeqReader reader("12,\"12\",ab,,\" 28\"");
  const Variant expected[] = {12.0, "12"s, "ab"s, ""s, " 28"s};
  for (const Variant& want : expected) {
    Variant item;
    ASSERT_TRUE(reader.ReadItem(item));
    EXPECT_EQ(item, want);
  }
  EXPECT_TRUE(reader.AtEnd());
}

TEST(SeqWriter, WritesWhatTheReaderReads) {
  SeqWriter writer;
  writer.Text("QV-R7, \"demo\"\r\nline");
  writer.Number(0.0075);
  writer.EndLine();
  writer.EndLine();
  writer.Bare("0A");
  writer.Item(Variant(-3.0));
  writer.Item(Variant(" 28"s));
  writer.EndLine();
  EXPECT_EQ(writer.Result(), "\"QV-R7, \"\"demo\"\"\r\nline\",0.0075\r\n\r\n0A,-3,\" 28\"\r\n");
  EXPECT_EQ(AllTexts(writer.Result()), "[QV-R7, \"demo\"\r\nline][0.0075][][0A][-3][ 28]");
}

TEST(SeqReader, ReadsLongFilesInLinearTime) {
  // Quadratic reading of these would take hours.
  std::string texts;
  for (int i = 0; i < 1'000'000; ++i) texts += "\"\"\"\",";
  const std::string quotes = "\"" + std::string(4'000'000, '"') + "\"";
  const std::string lines = "a" + std::string(4'000'000, '\n') + "b";
  for (const std::string& file : {texts, quotes, lines}) {
    SeqReader reader(file);
    int count = 0;
    for (std::string item; reader.ReadText(item);) ++count;
    EXPECT_GT(count, 0);
    EXPECT_TRUE(reader.AtEnd());
  }
}

}  // namespace
}  // namespace tr7
