#include "link/error_list.h"

#include <fstream>
#include <iterator>

#include "forms/frm_main.h"
#include "sim/controller.h"
#include "state/text.h"
#include "state/text_file.h"
#include "tests/support/memory_files.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class ErrorListTest : public StateTest {
 protected:
  ErrorListTest() {
    doors.files = &files;
    ErrorList = ErrorListRecord{};
  }

  int Read(const std::string& content) {
    files.Put(ProgramFile(Text(120)), content);
    return ReadErrorList();
  }
  /// Reads a list that the program brings along.
  int ReadShipped(const std::string& name) {
    std::ifstream file(TR7_SOURCE_DIR "/lists/" + name, std::ios::binary);
    return Read({std::istreambuf_iterator<char>(file), {}});
  }
  const std::string& Panel() const { return frmMain.sbStatusBar.Panels[kPanelError]; }

  MemoryFiles files;
};

constexpr const char* kSmall =
    "1\r\n\"1\",\"first\"\r\n\"A2\",\"second\"\r\n0\r\n\"34\",\"axis four\"\r\n";

TEST_F(ErrorListTest, DecodesByUnitAndCode) {
  ASSERT_EQ(Read(kSmall), 0);
  const std::string none = Text(32);
  const struct {
    std::string reply;
    std::string no, label, name;
    bool known;
  } rows[] = {{"0%%001\r\n", "1", Text(1036), "first", true},
              {"0%%0X1\r\n", "1", Text(1036), "first", true},
              {"0%%002\r\n", "2", Text(1036), none, false},  // the whole code must agree
              {"0%%134\r\n", "4", Text(220), "axis four", true},
              {"0%%404\r\n", "4", Text(223), "axis four", true},
              {"0%%403\r\n", "3", Text(223), none, false},
              {"0%%504\r\n", "4", "不明", none, false},
              {"0%%/01\r\n", "1", "不明", none, false},
              {"0%%00\r\n", "", Text(1036), none, false},
              {"0%%\r\n", "", "不明", none, false},
              {"", "", "不明", none, false},
              {std::string("0%%0\0\0\r\n", 8), "", Text(1036), none, false},
              {"0%%00\x88\r\n", "", Text(1036), none, false}};
  for (const auto& row : rows) {
    frmMain.imgAlarm.Visible = false;
    DecodeCtError(row.reply);
    EXPECT_EQ(AppState.CtErrorNo, row.no) << row.reply;
    EXPECT_EQ(AppState.CtErrorName, row.name) << row.reply;
    EXPECT_EQ(AppState.CtErrorKnown, row.known) << row.reply;
    EXPECT_EQ(ErrorList.LastErrShown, row.known) << row.reply;
    EXPECT_EQ(ErrorList.LastErrText, row.name) << row.reply;
    EXPECT_EQ(ErrorList.LastErrCode, row.no) << row.reply;
    EXPECT_TRUE(frmMain.imgAlarm.Visible);
    EXPECT_EQ(Panel(), row.label + ":" + row.name);
  }
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(ErrorListTest, TheFirstRowOfACodeWins) {
  ASSERT_EQ(Read("-1,2,\"14\",\"a\",\"24\",\"b\",\"\",\"empty\""), 0);
  DecodeCtError("0%%204");
  EXPECT_EQ(AppState.CtErrorName, "a");
  DecodeCtError("0%%001");
  EXPECT_FALSE(AppState.CtErrorKnown);
}

TEST_F(ErrorListTest, ErrorHyojiShowsTheLastReply) {
  ASSERT_EQ(Read(kSmall), 0);
  AppState.LastCtErrorText = "0%%001\r\n";
  ErrorHyoji();
  EXPECT_EQ(AppState.CtErrorName, "first");
}

std::string Pairs(int count) {
  std::string pairs;
  for (int i = 0; i < count; ++i) pairs += "\"" + std::to_string(i) + "\",\"text\"\r\n";
  return pairs;
}

TEST_F(ErrorListTest, DamagedFilesAreRefusedWhole) {
  const std::string good[] = {"40\r\n" + Pairs(41) + "40\r\n" + Pairs(41), "-1\r\n-1\r\n",
                              "0,1,a,0,1,b", kSmall};
  for (const std::string& content : good) EXPECT_EQ(Read(content), 0) << content;
  const std::string bad[] = {"",
                             "\r\n",
                             "41\r\n" + Pairs(42) + "-1\r\n",
                             "-2\r\n-1\r\n",
                             "1.5\r\n",
                             "2147483648\r\n",
                             "1e300\r\n",
                             "x\r\n",
                             "3\r\n" + Pairs(2) + "0\r\n\"1\",\"b\"\r\n",
                             "0\r\n\"1\",\"a\"\r\n",
                             "0\r\n\"1\",\"a\"\r\n0\r\n",
                             "0\r\n\"1\",\"a\"\r\n0\r\n\"1\"\r\n",
                             "0\r\n\"1\",\"a\r\n0\r\n\"1\",\"b\"\r\n",
                             std::string(kListFileLimit + 1, ' ')};
  for (const std::string& content : bad) {
    ASSERT_EQ(Read(kSmall), 0);
    EXPECT_EQ(Read(content), 1) << content.substr(0, 80);
    EXPECT_TRUE(ErrorList.ErrListMissing);
    EXPECT_TRUE(ErrorList.ErrListMain.empty() && ErrorList.ErrListAxis.empty());
  }
}

TEST_F(ErrorListTest, ShippedListsKnowWhatTheSimulatorReports) {
  using namespace qvr7sim::error_code;
  const struct {
    char unit, code;
    const char* english;
    const char* japanese;
  } rows[] = {
      {'0', kUnknownCommand, "Unknown command", "未定義コマンド"},
      {'0', kBadFrame, "Command format error", "コマンド形式異常"},
      {'0', kBadNumber, "Number or value out of range", "番号または設定値範囲外"},
      {'0', kMoving, "Refused while an axis is moving", "軸動作中のため実行不可"},
      {'1', kNotHomed, "Home position is not set", "原点復帰未完了"},
      {'2', kBeyondStroke, "Target position outside of the stroke", "目標位置ストローク範囲外"},
      {'4', kHomeSensor, "Home sensor not found", "原点センサ未検出"}};
  for (const bool english : {true, false}) {
    AppState.LangOffset = english ? 10000 : 0;
    ASSERT_EQ(ReadShipped(english ? "erroreng.lst" : "errorjpn.lst"), 0);
    EXPECT_EQ(ErrorList.ErrListMain.size(), 15u);
    EXPECT_EQ(ErrorList.ErrListAxis.size(), 15u);
    for (const auto& row : rows) {
      DecodeCtError({'0', '%', '%', row.unit, '0', row.code, '\r', '\n'});
      EXPECT_EQ(AppState.CtErrorName, english ? row.english : row.japanese);
    }
  }
}

}  // namespace
}  // namespace tr7
