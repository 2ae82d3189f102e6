// What keeps the tree a house: who includes whom, that every text is in the message table, and
// that every view is translated.

#include <iostream>
#include <regex>
#include <set>

#include "tests/support/source_tree.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

using Files = std::vector<SourceFile>;

const Files& Tree() {
  static const Files tree = ReadSources({"src", "sim", "tests", "bench"});
  return tree;
}

bool InFolder(const std::string& path, const char* folder) { return path.starts_with(folder); }

// Includes.

using Graph = std::map<std::string, std::vector<std::string>>;

Graph IncludeGraph(const Files& files) {
  Graph graph;
  for (const SourceFile& file : files) {
    for (const std::string& quoted : file.quoted) {
      const std::string path = IncludedPath(files, quoted);
      if (!path.empty()) graph[file.path].push_back(path);
    }
  }
  return graph;
}

/// Depth first: a file that is met again while it is still open closes a circle.
void FindCircle(const Graph& graph, const std::string& path, std::vector<std::string>& open,
                std::set<std::string>& done, std::vector<std::string>& circles) {
  if (done.contains(path)) return;
  if (const auto again = std::find(open.begin(), open.end(), path); again != open.end()) {
    std::string circle;
    for (auto it = again; it != open.end(); ++it) circle += *it + " -> ";
    circles.push_back(circle + path);
    return;
  }
  open.push_back(path);
  if (const auto found = graph.find(path); found != graph.end()) {
    for (const std::string& next : found->second) FindCircle(graph, next, open, done, circles);
  }
  open.pop_back();
  done.insert(path);
}

std::vector<std::string> Circles(const Graph& graph) {
  std::vector<std::string> circles, open;
  std::set<std::string> done;
  for (const auto& [path, included] : graph) FindCircle(graph, path, open, done, circles);
  return circles;
}

TEST(Structure, TheTreeIsRead) {
  EXPECT_GT(Tree().size(), 150u);
  EXPECT_GT(IncludeGraph(Tree()).size(), 100u);
}

TEST(Structure, ACircleIsFound) {
  EXPECT_EQ(Circles({{"a", {"b"}}, {"b", {"c"}}, {"c", {"b"}}}).size(), 1u);
  EXPECT_EQ(Circles({{"a", {"b", "c"}}, {"b", {"c"}}}).size(), 0u);
}

// The folders of src/ stand in one line, from the ground up; a file includes its own folder and
// those before it. Of the data kinds, a position file brings devices, so positions stand on
// parameters; groups and macros name positions.
const std::vector<std::string>& Line() {
  static const std::vector<std::string> line{"base",  "forms",  "platform", "state",   "link",
                                             "steps", "device", "session",  "compare", "para",
                                             "posi",  "data",   "motion",   "prog",    "monitor",
                                             "wire",  "report", "core",     "ui"};
  return line;
}

/// The folder's place in the line; -1: it has none.
int FloorOf(const std::string& path) {
  const std::string folder = path.substr(0, path.find('/'));
  const auto at = std::find(Line().begin(), Line().end(), folder);
  return at == Line().end() ? -1 : static_cast<int>(at - Line().begin());
}

TEST(Structure, FoldersStandInOneLine) {
  std::string line;
  for (const std::string& folder : Line()) line += (line.empty() ? "" : " < ") + folder;
  std::cout << "folders: " << line << "\n";
  for (const SourceFile& file : Tree()) {
    if (!InFolder(file.path, "src/")) continue;
    const std::string from = file.path.substr(4);
    EXPECT_GE(FloorOf(from), 0) << from << " stands in no folder of the line";
    for (const std::string& quoted : file.quoted) {
      EXPECT_LE(FloorOf(quoted), FloorOf(from)) << "an arrow runs up: " << from << " -> " << quoted;
    }
  }
}

/// A header and its source are one unit: two units that include one another are a circle too.
Graph UnitsOf(const Graph& files) {
  const auto unit = [](const std::string& path) { return path.substr(0, path.rfind('.')); };
  Graph units;
  for (const auto& [path, included] : files) {
    for (const std::string& other : included) {
      if (unit(other) != unit(path)) units[unit(path)].push_back(unit(other));
    }
  }
  return units;
}

TEST(Structure, IncludesFormNoCircle) {
  for (const std::string& circle : Circles(IncludeGraph(Tree()))) ADD_FAILURE() << circle;
  const Graph units = UnitsOf(IncludeGraph(ReadSources({"src", "sim"})));
  for (const std::string& circle : Circles(units)) ADD_FAILURE() << circle;
}

bool IsQtHeader(const std::string& name) {
  static const std::regex kQt(R"((Q[A-Z]|Qt[A-Z]?|q(t|gpa|pa)[a-z]*/|qt).*)");
  return std::regex_match(name, kQt);
}

TEST(Structure, OnlyTheDesktopKnowsQt) {
  EXPECT_TRUE(IsQtHeader("QString") && IsQtHeader("QtWidgets/QLabel"));
  EXPECT_FALSE(IsQtHeader("queue"));
  for (const SourceFile& file : ReadSources({"src", "sim"})) {
    if (InFolder(file.path, "src/ui/")) continue;
    for (const auto* names : {&file.bracketed, &file.quoted}) {
      for (const std::string& name : *names) {
        EXPECT_FALSE(IsQtHeader(name)) << file.path << " includes " << name;
      }
    }
  }
}

TEST(Structure, ToolAndSimulatorMeetAtThePortAlone) {
  const std::tuple<const char*, const char*, const char*> forbidden[] = {
      {"sim/", "-", "src/"},
      {"src/", "src/platform/sim_port.", "sim/"},
      {"src/", "-", "tests/"},
      {"sim/", "-", "tests/"}};
  for (const auto& [path, included] : IncludeGraph(Tree())) {
    for (const auto& [from, but, to] : forbidden) {
      if (!InFolder(path, from) || InFolder(path, but)) continue;
      for (const std::string& other : included) {
        EXPECT_FALSE(InFolder(other, to)) << path << " includes " << other;
      }
    }
  }
}

// The message table.

/// "%1" and "%2" as far as the text has them.
int Placeholders(std::string_view text) {
  return (text.find("%1") != std::string::npos) + 2 * (text.find("%2") != std::string::npos);
}

TEST(Structure, TheMessageTableIsSortedWholeAndInBothLanguages) {
  int before = 0;
  EXPECT_EQ(MessageTable().size(), std::size(kMessageIds));
  EXPECT_EQ(TreeLines("src/res/messages.tsv"), MessageTable().size());
  for (const MessageRow& row : MessageTable()) {
    EXPECT_GT(row.id, before) << "unsorted or double";
    EXPECT_LT(row.id, 10000);
    EXPECT_FALSE(row.japanese.empty() || row.english.empty()) << row.id << " has an empty column";
    EXPECT_EQ(row.english.find('\t'), std::string::npos) << row.id << " has a fourth column";
    EXPECT_EQ(Placeholders(row.japanese), Placeholders(row.english)) << row.id;
    before = row.id;
  }
}

// The views.

/// The texts that a user reads on a control; other kinds show a value. The choice boxes' captions
/// and the popup's come from messages that logic picks.
std::vector<MsgId> TagsOf(Control& control) {
  static const std::set<std::string> kCaptioned{"CommandButton", "CheckBox", "OptionButton",
                                                "Frame", "Menu"};
  static const std::regex kSetByLogic(R"(frmSelection2?\.(cmdOk|optChoice\d)|frmPosi\.mnuPopup)");
  std::vector<MsgId> tags;
  if (const auto* tabs = dynamic_cast<TabStrip*>(&control)) {
    for (const Tab& tab : tabs->Tabs) tags.push_back(tab.Tag);
  } else if (const auto* bar = dynamic_cast<Toolbar*>(&control)) {
    for (const ToolButton& button : bar->Buttons) {
      if (*button.Key) tags.push_back(button.Tag);  // a separator has no text
    }
  } else if (kCaptioned.contains(control.TypeName) &&
             !std::regex_match(std::string(control.Owner->Name) + "." + control.Name,
                               kSetByLogic)) {
    tags.push_back(control.Tag);
  }
  return tags;
}

class ViewTest : public StateTest {};

TEST_F(ViewTest, EveryCaptionHasATranslationAndEveryControlANameOfItsOwn) {
  std::set<std::string> names;
  for (View* view : AllViews()) {
    EXPECT_TRUE(names.insert(view->Name).second) << "two views are called " << view->Name;
    EXPECT_EQ(view->Caption, "") << view->Name << " has a text in its record";
    for (Control* control : view->Controls) {
      const std::string name = std::string(view->Name) + "." + control->Name;
      EXPECT_TRUE(names.insert(name).second) << "two controls are called " << name;
      EXPECT_EQ(control->Caption, "") << name << " has a text in its record";
      for (const MsgId tag : TagsOf(*control)) EXPECT_TRUE(tag) << name;
    }
  }
  EXPECT_GT(names.size(), 150u);
}

}  // namespace
}  // namespace tr7
