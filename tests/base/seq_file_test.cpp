#include "base/seq_file.h"

#include <gtest/gtest.h>

#include <utility>

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
  const std::pair<std::string, std::string> rows[] = {
      {"\r\n \r\n", ""},
      {"a\nb\rc", "[a][b][c]"},
      {"a\r\n\r\n\r\n", "[a]"},
      {"a\r\n\r\nb", "[a][][b]"},
      {"a,,b", "[a][][b]"},
      {"a,\r\n", "[a][]"},
      {"\xEF\xBB\xBF\"a\"", "[a]"},
      {"  a b ,\t\" 28\" , 7\r\n", "[a b][ 28][7]"},
      {"\"a,b\r\nc\",d", "[a,b\r\nc][d]"},
      {"\"say \"\"go\"\"\",\"\"", "[say \"go\"][]"},
      {"a\"b\"c,d", "[a\"b\"c][d]"},
      {"a,\"left open\r\nb,c", "[a]!"},
      {"\"a\"b,c", "!"},
      {"a\0b,\"\0\",\x81\xFF"s, "[a\0b][\0][\x81\xFF]"s}};
  for (const auto& [file, items] : rows) EXPECT_EQ(AllTexts(file), items) << file;
}

TEST(SeqReader, Numbers) {
  const std::pair<std::string, double> good[] = {{"12", 12},  {" -0.5 ", -0.5}, {"+3", 3},
                                                 {".5", 0.5}, {"5.", 5},        {"1E3", 1000},
                                                 {"\"\"", 0}, {"\" 12 \"", 12}, {" ,", 0}};
  double value = 77;
  for (const auto& [item, number] : good) {
    EXPECT_TRUE(SeqReader(item).ReadNumber(value)) << item;
    EXPECT_EQ(value, number) << item;
  }
  value = 77;
  for (const char* item : {"12a", "1 2", "inf", "nan", "0x10", "1e999", "+-3", "-", "#TRUE#"}) {
    SeqReader reader(item + ",2"s);
    EXPECT_FALSE(reader.ReadNumber(value)) << item;
    EXPECT_EQ(value, 77) << item;
    double next = 0;
    EXPECT_TRUE(reader.ReadNumber(next) && next == 2) << "what is no number is consumed";
  }
}

TEST(SeqReader, ReadsLongFilesInLinearTime) {
  // Quadratic reading of these would take hours.
  const std::string quotes = "\"" + std::string(4'000'000, '"') + "\"";
  const std::string lines = "a" + std::string(4'000'000, '\n') + "b";
  for (const std::string& file : {quotes, lines}) {
    SeqReader reader(file);
    for (std::string item; reader.ReadText(item);) continue;
    EXPECT_TRUE(reader.AtEnd());
  }
}

}  // namespace
}  // namespace tr7
