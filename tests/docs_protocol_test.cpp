// docs/protocol.md says what the code does.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "para/para_blocks.h"

namespace tr7 {
namespace {

std::string ReadText(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

const std::filesystem::path kRoot(TR7_SOURCE_DIR);

/// Appends to a list that a comma separates, once.
void Add(std::string& list, const std::string& item) {
  if ((", " + list + ",").find(" " + item + ",") == std::string::npos) {
    list += (list.empty() ? "" : ", ") + item;
  }
}

/// A row's line of the table, from the code.
std::string PlaceLine(int row) {
  std::string blocks, positions;
  for (int axis = 0; axis < kAxes; ++axis) {
    const ParaPlace place = PlaceOfPara(row, axis);
    Add(blocks, std::string(1, ParaBlockChar(place.Block)));
    Add(positions, std::to_string(place.At));
  }
  return "| " + std::to_string(row) + " | " + ParaRowName(row) + " | " + blocks + " | " +
         positions + " | " + std::to_string(PlaceOfPara(row, 0).Width) + " |\n";
}

TEST(ProtocolPage, PlacesEveryParameterAsTheCodeDoes) {
  const std::string page =
      std::regex_replace(ReadText(kRoot / "docs/protocol.md"), std::regex(R"(\*\*)"), "");
  for (int row = 1; row <= kParaRows; ++row) {
    EXPECT_NE(page.find(PlaceLine(row)), std::string::npos) << PlaceLine(row);
  }
}

TEST(ProtocolPage, TellsEveryCommand) {
  const std::string page = ReadText(kRoot / "docs/protocol.md");
  const std::regex command(R"re("(0[A-Z][A-Z][0-9]?)["0-9])re");
  std::set<std::string> commands;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / "src")) {
    if (!entry.is_regular_file()) continue;
    const std::string source = ReadText(entry.path());
    for (std::sregex_iterator it(source.begin(), source.end(), command), end; it != end; ++it) {
      commands.insert(it->str(1));
    }
  }
  EXPECT_GT(commands.size(), 20u);
  for (const std::string& name : commands) {
    EXPECT_NE(page.find('"' + name), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace tr7
