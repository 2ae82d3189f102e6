#include "link/error_list.h"

#include "sim/controller.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class ErrorListTest : public StateTest {
 protected:
  int Read(const std::string& content) {
    PutList(Text(120).c_str(), content);
    return ReadErrorList();
  }
};

constexpr const char* kSmall =
    "1\r\n\"1\",\"first\"\r\n\"A2\",\"second\"\r\n0\r\n\"34\",\"axis four\"\r\n";

TEST_F(ErrorListTest, DecodesByUnitAndCode) {
  ASSERT_EQ(Read(kSmall), 0);
  const std::string none = Text(32);
  const struct {
    std::string reply, no, label, name;
  } rows[] = {
      {"0%%001\r\n", "1", Text(1036), "first"},    {"0%%0X1\r\n", "1", Text(1036), "first"},
      {"0%%002\r\n", "2", Text(1036), none},  // the whole code must agree
      {"0%%134\r\n", "4", Text(220), "axis four"}, {"0%%404\r\n", "4", Text(223), "axis four"},
      {"0%%504\r\n", "4", "不明", none},           {"0%%/01\r\n", "1", "不明", none},
      {"0%%00\r\n", "", Text(1036), none},         {"", "", "不明", none},
      {"0%%00\x88\r\n", "", Text(1036), none}};
  for (const auto& row : rows) {
    frmMain.imgAlarm.Visible = false;
    AppState.LastCtErrorText = row.reply;
    ErrorHyoji();
    EXPECT_EQ(AppState.CtErrorNo, row.no) << row.reply;
    EXPECT_EQ(AppState.CtErrorName, row.name) << row.reply;
    EXPECT_EQ(AppState.CtErrorKnown, row.name != none) << row.reply;
    EXPECT_TRUE(frmMain.imgAlarm.Visible);
    EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], row.label + ":" + row.name);
  }
  ASSERT_EQ(Read("-1,2,\"14\",\"a\",\"24\",\"b\",\"\",\"empty\""), 0);
  DecodeCtError("0%%204");
  EXPECT_EQ(AppState.CtErrorName, "a") << "the first row of a code";
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(ErrorListTest, ShippedListsKnowWhatTheSimulatorReports) {
  using namespace qvr7sim::error_code;
  const std::pair<char, char> codes[] = {
      {'0', kUnknownCommand}, {'0', kBadFrame},     {'0', kBadNumber}, {'0', kMoving},
      {'1', kNotHomed},       {'2', kBeyondStroke}, {'4', kHomeSensor}};
  for (const bool english : {true, false}) {
    AppState.LangOffset = english ? 10000 : 0;
    ASSERT_EQ(ReadErrorList(), 0);
    for (const auto& [unit, code] : codes) {
      DecodeCtError({'0', '%', '%', unit, '0', code, '\r', '\n'});
      EXPECT_TRUE(AppState.CtErrorKnown) << unit << code;
    }
    EXPECT_EQ(AppState.CtErrorName, english ? "Home sensor not found" : "原点センサ未検出");
  }
}

}  // namespace
}  // namespace tr7
