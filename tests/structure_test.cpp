// What keeps the tree a house: who includes whom, that every text is in the message table, and
// that every view is translated.

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "forms/control.h"
#include "state/text.h"
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
  static const std::vector<std::string> line{"base",  "forms",  "platform", "state", "link",
                                             "steps", "device", "session",  "para",  "posi",
                                             "data",  "core",   "ui"};
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
  for (const SourceFile& file : Tree()) {
    if (!InFolder(file.path, "src/") && !InFolder(file.path, "sim/")) continue;
    if (InFolder(file.path, "src/ui/")) continue;
    for (const std::string& name : file.bracketed) {
      EXPECT_FALSE(IsQtHeader(name)) << file.path << " includes <" << name << ">";
    }
    for (const std::string& name : file.quoted) {
      EXPECT_FALSE(IsQtHeader(name) || name.starts_with("ui/"))
          << file.path << " includes \"" << name << "\"";
    }
  }
}

TEST(Structure, ToolAndSimulatorMeetAtThePortAlone) {
  for (const SourceFile& file : Tree()) {
    for (const std::string& quoted : file.quoted) {
      const std::string path = IncludedPath(Tree(), quoted);
      if (InFolder(file.path, "sim/")) {
        EXPECT_FALSE(InFolder(path, "src/")) << file.path << " includes " << path;
      }
      if (InFolder(file.path, "src/") && !InFolder(file.path, "src/platform/sim_port.")) {
        EXPECT_FALSE(InFolder(path, "sim/")) << file.path << " includes " << path;
      }
      if (InFolder(file.path, "src/") || InFolder(file.path, "sim/")) {
        EXPECT_FALSE(InFolder(path, "tests/")) << file.path << " includes " << path;
      }
    }
  }
}

// The message table.

/// "%1" and "%2" as far as the text has them.
std::string Placeholders(const std::string& text) {
  std::string marks;
  for (const char* mark : {"%1", "%2"}) {
    if (text.find(mark) != std::string::npos) marks += mark;
  }
  return marks;
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

/// Kinds whose caption the user reads; the others show a value.
bool ShowsItsCaption(const Control& control) {
  static const std::set<std::string> kKinds{"CommandButton", "CheckBox", "OptionButton", "Frame",
                                            "Menu"};
  return kKinds.contains(control.TypeName);
}

/// Controls whose caption logic sets from messages of its own.
bool LogicSetsTheCaption(const Control& control) {
  static const std::set<std::string> kNames{
      "frmSelection.cmdOk",       "frmSelection.optChoice1",  "frmSelection.optChoice2",
      "frmSelection.optChoice3",  "frmSelection2.cmdOk",      "frmSelection2.optChoice1",
      "frmSelection2.optChoice2", "frmSelection2.optChoice3", "frmPosi.mnuPopup"};
  return kNames.contains(std::string(control.Owner->Name) + "." + control.Name);
}

/// The texts that a user reads on a control.
std::vector<MsgId> TagsOf(Control& control) {
  std::vector<MsgId> tags;
  if (const auto* tabs = dynamic_cast<TabStrip*>(&control)) {
    for (const Tab& tab : tabs->Tabs) tags.push_back(tab.Tag);
  } else if (const auto* bar = dynamic_cast<Toolbar*>(&control)) {
    for (const ToolButton& button : bar->Buttons) {
      if (*button.Key) tags.push_back(button.Tag);  // a separator has no text
    }
  } else if (ShowsItsCaption(control) && !LogicSetsTheCaption(control)) {
    tags.push_back(control.Tag);
  }
  return tags;
}

class ViewTest : public StateTest {};

TEST_F(ViewTest, EveryCaptionHasATranslation) {
  ASSERT_GE(AllViews().size(), 8u);
  int controls = 0;
  for (View* view : AllViews()) {
    EXPECT_EQ(view->Caption, "") << view->Name << " has a text in its record";
    for (Control* control : view->Controls) {
      ++controls;
      const std::string name = std::string(view->Name) + "." + control->Name;
      EXPECT_EQ(control->Caption, "") << name << " has a text in its record";
      for (const MsgId tag : TagsOf(*control)) EXPECT_TRUE(tag) << name;
    }
  }
  EXPECT_GT(controls, 150);
}

TEST_F(ViewTest, NamesAreUniqueWithinAView) {
  std::set<std::string> views;
  for (View* view : AllViews()) {
    EXPECT_TRUE(views.insert(view->Name).second) << "two views are called " << view->Name;
    std::set<std::string> names;
    for (Control* control : view->Controls) {
      EXPECT_TRUE(names.insert(control->Name).second) << view->Name << "." << control->Name;
    }
  }
}

}  // namespace
}  // namespace tr7
