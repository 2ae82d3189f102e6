#include "posi/posi_file.h"

#include "device/dev_setting.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_table.h"
#include "state/text.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/job.qvd";

/// A record: number, column 5 as it stands, 26 times zero, a comment.
std::string Line(const std::string& number, const std::string& comment = "") {
  std::string line = number;
  for (int col = 1; col < kComment; ++col) line += col == 5 ? ",0" : ",\" 0\"";
  return line + ",\"" + comment + "\"\r\n";
}

const std::string kHead = "\"QV-R7\"\r\n\"POS MODE\"\r\n\"QV- 28L-100_\",\"\",\"\",\"\"\r\n";
const std::string kWords = "\"OLD\",\"NEW\",\"NEW\",\"NEW\"\r\n";

class PosiFile : public StateTest {
 protected:
  void SetRange(int first, int last) {
    AppState.PosiFirstNo = AppState.PosiFromNo = static_cast<std::int16_t>(first);
    AppState.PosiLastNo = AppState.PosiToNo = static_cast<std::int16_t>(last);
  }
  Variant& Field(int col, std::size_t number) {
    return PosiTable.PosiRec[static_cast<std::size_t>(col)][number];
  }
  const Variant& Stage(int col, std::size_t number) const {
    return PosiTable.PosiStage[static_cast<std::size_t>(col)][number];
  }
  int Read(const std::string& bytes) {
    virt.files.Put(kPath, bytes);
    return ReadPosiFile(kPath, trouble);
  }
  int ReadOldest(const std::string& bytes) {
    virt.files.Put(kPath, bytes);
    return ReadOldPosiFile(kPath, trouble);
  }
  void PutTwoLines();

  PosiFileTrouble trouble;
};

void PosiFile::PutTwoLines() {
  PosiTableInit();
  SetRange(1, 2);
  frmPosi.lblDeviceType[0]->Caption = "QV- 28L-100_";
  frmPosi.lblDeviceType[1]->Caption = "QV-E35L-200E";
  frmPosi.lblDeviceType[2]->Caption = "QV- 42H-300 ";
  DevSetting[1].NewType = True;
  AppState.AxisMuko[2] = True;  // has a caption all the same
  for (int axis = 0; axis < kAxes; ++axis) Field(AxisBase(axis) + kWay, 1) = 1.0;
  Field(kPosi, 1) = 1000.0;
  Field(6 + kPosi, 1) = 262143.0;
  Field(kPf, 2) = std::string("20");
  Field(kPs, 2) = -7.0;
  Field(kOut, 2) = std::string(" 15");
  Field(kComment, 1) = std::string("受取り, 表示");
  Field(kComment, 2) = std::string("a \"b\" ﾎｰﾑ");
}

TEST_F(PosiFile, TheWriterMakesTheseBytes) {
  PutTwoLines();
  const std::string head =
      "\"QV- 28L-100_\",\"QV-E35L-200E\",\"QV- 42H-300 \",\"\"\r\n"
      "\"OLD\",\"NEW\",\"NEW\",\"NEW\"\r\n";
  const std::string records =
      "1,\" 30\",\" 10\",\" 1\",\" 1000\",0,\" 0\",\" 30\",\" 10\",\" 1\",\" 262143\",\" 0\",\" "
      "0\","
      "\" 30\",\" 10\",\" 1\",\" 0\",\" 0\",\" 0\",\" 30\",\" 10\",\" 1\",\" 0\",\" 0\",\" 0\","
      "\" 0\",\" 0\",\" 0\",\"\x8e\xf3\x8e\xe6\x82\xe8, \x95\x5c\x8e\xa6\"\r\n"
      "2,\" 30\",\" 10\",\" 0\",\" 0\",\"20\",\"-7\",\" 30\",\" 10\",\" 0\",\" 0\",\" 0\",\" 0\","
      "\" 30\",\" 10\",\" 0\",\" 0\",\" 0\",\" 0\",\" 30\",\" 10\",\" 0\",\" 0\",\" 0\",\" 0\","
      "\" 0\",\" 15\",\" 0\",\"a \"\"b\"\" \xce\xb0\xd1\"\r\n";
  for (const bool program_mode : {false, true}) {
    AppState.CtMode = program_mode;
    ASSERT_EQ(SaveFileAs2(kPath, trouble), 0) << trouble.words;
    const std::string mode = program_mode ? "\"PRG MODE\"\r\n" : "\"POS MODE\"\r\n";
    EXPECT_EQ(virt.files.Content(kPath), "\"QV-R7\"\r\n" + mode + head + records);
  }
}

TEST_F(PosiFile, BadLinesAndLinesOutsideTheRangeAreNotWritten) {
  PutTwoLines();
  SetRange(1, 999);
  AppState.PosiFromNo = 997;
  PosiTable.PosiLineBad[998] = True;
  frmPosi.PosiChanged = True;
  ASSERT_EQ(SaveFileAs2(kPath, trouble), 0);
  ASSERT_EQ(Read(*virt.files.Content(kPath)), 0);
  EXPECT_EQ(AppState.FileFirstNo, 997);
  EXPECT_EQ(AppState.FileLastNo, 999);
  EXPECT_EQ(virt.files.Content(kPath)->find("\r\n998,"), std::string::npos);
  EXPECT_TRUE(frmPosi.PosiChanged) << "the rest of the table is in no file";
  AppState.PosiFromNo = 1;
  ASSERT_EQ(SaveFileAs2(kPath, trouble), 0);
  EXPECT_FALSE(frmPosi.PosiChanged);
}

TEST_F(PosiFile, TheTableIsNamedAfterItsFile) {
  PutTwoLines();
  const struct {
    const char *path, *name, *ending, *title;
  } rows[] = {{"/data/job.qvd", "/data/job", ".qvd", "job"},
              {"C:\\data\\job.QVD", "C:\\data\\job", ".QVD", "job"},
              {"/data.d/job.text", "/data.d/job.text", "", "job.text"},
              {"job", "job", "", "job"}};
  for (const auto& row : rows) {
    ASSERT_EQ(SaveFileAs2(row.path, trouble), 0);
    EXPECT_EQ(PosiTable.Name, row.name);
    EXPECT_EQ(PosiTable.FileEnding, row.ending);
    EXPECT_EQ(PosiTablePath(), row.path) << "the next save meets the same file";
    EXPECT_EQ(frmPosi.Caption, "Position Data-[" + std::string(row.title) + "]");
  }
}

TEST_F(PosiFile, ACharacterThatTheFileCannotHoldIsNamedWithItsPosition) {
  PutTwoLines();
  Field(kComment, 2) = std::string("ok é");
  virt.files.Put(kPath, "old");
  frmPosi.PosiChanged = True;
  EXPECT_EQ(SaveFileAs2(kPath, trouble), 1);
  EXPECT_EQ(trouble.words, "Position No. 2 holds the character \"é\", which the file cannot hold.");
  EXPECT_FALSE(trouble.may_pass);
  EXPECT_EQ(virt.files.Content(kPath), "old");
  EXPECT_TRUE(frmPosi.PosiChanged);
  EXPECT_EQ(PosiTable.Name, "");
  PosiTable.PosiLineBad[1] = True;
  EXPECT_EQ(SaveFileAs2(kPath, trouble), 1);
  EXPECT_NE(trouble.words.find("No. 2 "), std::string::npos) << "a line left out counts as none";
}

TEST_F(PosiFile, AnyOrderOfNumbersReadsAsItStands) {
  const struct {
    const char* what;
    std::string records;
    int first, last;
  } rows[] = {
      {"one", Line("7"), 7, 7},
      {"gap", Line("3") + Line("9"), 3, 9},
      {"descending", Line("9") + Line("3"), 9, 3},
      {"repeated", Line("4", "a") + Line("4", "b"), 4, 4},
      {"quoted number", Line("\" 12\""), 12, 12},
      {"the ends", Line("1") + Line("999"), 1, 999},
      {"items over lines", "5" + Line("").substr(0, 40) + "\r\n" + Line("").substr(41), 5, 5}};
  for (const auto& row : rows) {
    PosiTableInit();
    ASSERT_EQ(Read(kHead + kWords + row.records), 0) << row.what << ": " << trouble.words;
    EXPECT_EQ(AppState.FileFirstNo, row.first) << row.what;
    EXPECT_EQ(AppState.FileLastNo, row.last) << row.what;
    EXPECT_FALSE(AppState.PosiFileNotOurs);
  }
  EXPECT_EQ(Read(kHead + kWords + Line("4", "a") + Line("4", "b")), 0);
  EXPECT_EQ(TextOf(Stage(kComment, 4)), "b") << "the later line counts";
  EXPECT_EQ(ValueOf(Stage(kVel, 9)), 30) << "nothing of an earlier file is left";
  EXPECT_EQ(Read(kHead + kWords + Line("9") + Line("4") + Line("7")), 0);
  EXPECT_EQ(NumbersLeftOut(4, 11), "5-6, 8, 10-11");
  EXPECT_EQ(NumbersLeftOut(999, 999), "999");
}

TEST_F(PosiFile, ModesAndWords) {
  const auto file = [](const std::string& mode, const std::string& words) {
    return "\"QV-R7\"\r\n\"" + mode + "\"\r\n\"A\",\"B\",\"\",\"\"\r\n" + words + Line("5");
  };
  const struct {
    std::string mode, words;
    bool program;
    const char *word1, *word2;
  } rows[] = {{"PRG MODE", kWords, true, "OLD", "NEW"},
              {"POS MODE", kWords, false, "OLD", "NEW"},
              {"prg mode", kWords, false, "OLD", "NEW"},
              {"", "\"NEW\",\"x\",\"\",\"OLD\"\r\n", false, "NEW", "x"},
              {"PRG MODE", "", true, "OLD", "OLD"}};
  for (const auto& row : rows) {
    ASSERT_EQ(Read(file(row.mode, row.words)), 0) << trouble.words;
    EXPECT_EQ(bool(AppState.FileIsPrgMode), row.program);
    EXPECT_EQ(DevSettei[0].NewTypeWord, row.word1);
    EXPECT_EQ(DevSettei[1].NewTypeWord, row.word2);
    EXPECT_EQ(AppState.FileFirstNo, 5) << "the items taken for words are read once more";
    EXPECT_EQ(FileDevice[1], "B");
  }
}

TEST_F(PosiFile, ADamagedFileSaysWhere) {
  const std::string start = kHead + kWords;
  const struct {
    std::string bytes;
    int line;
    std::string words;
  } rows[] = {{kHead + "\"NEW\",\"OLD\"", 4, Text(6451)},
              {start, 4, Text(6454)},
              {start + Line("3") + Line("4").substr(0, 50), 6, Text(6452, "4")},
              {start + Line("1") + Line("1000"), 6, Text(6453, "1000")},
              {start + Line("1.5"), 5, Text(6453, "1.5")}};
  for (const auto& row : rows) {
    AppState.PosiFileNotOurs = False;
    EXPECT_EQ(Read(row.bytes), 1) << row.words;
    EXPECT_TRUE(AppState.PosiFileNotOurs) << row.words;
    EXPECT_EQ(trouble.words, Text(6321, std::to_string(row.line), row.words));
    EXPECT_FALSE(trouble.may_pass) << row.words;
  }
}

TEST_F(PosiFile, AHundredMegabytesEndInWords) {
  EXPECT_EQ(Read(kHead + kWords + std::string(100u << 20, '1')), 1);
  EXPECT_EQ(trouble.words, Text(5913, "job.qvd"));
  EXPECT_FALSE(trouble.may_pass);
}

TEST_F(PosiFile, CommentsFromElsewhereBecomeOneLine) {
  const struct {
    const char *written, *read;
  } rows[] = {
      {"a\tb\r\nc", "a b  c"}, {"say \"\"x\"\", y", "say \"x\", y"}, {"\x95\x5c\x8e\xa6", "表示"}};
  for (const auto& row : rows) {
    ASSERT_EQ(Read(kHead + kWords + Line("1", row.written)), 0);
    EXPECT_EQ(TextOf(Stage(kComment, 1)), row.read);
  }
  ASSERT_EQ(Read(kHead + kWords + Line("1").substr(0, Line("1").size() - 4) + "12\r\n"), 0);
  EXPECT_EQ(Stage(kComment, 1), Variant(std::string("12"))) << "a comment is a text";
}

TEST_F(PosiFile, TheOldestLayout) {
  const std::string head = "\"QV-R7\"\r\n\"QV- 28L-100\",\"\",\"\",\"\"\r\n";
  const std::string record =
      "3,\" 31\",\" 11\",\" 1\",\" 1001\",\" 32\",\" 12\",\" 2\",\" 1002\","
      "33,13,3,1003,34,14,0,1004,1,15,20,\"\x8e\xf3\"\r\n";
  PosiTableInit();
  AppState.FileIsPrgMode = True;
  ASSERT_EQ(ReadOldest(head + record), 0) << trouble.words;
  EXPECT_FALSE(AppState.FileIsPrgMode);
  EXPECT_EQ(FileDevice[0], "QV- 28L-100");
  EXPECT_EQ(DevSettei[3].NewTypeWord, "OLD");
  EXPECT_EQ(AppState.FileFirstNo, 3);
  const double expected[] = {31, 11,   1, 1001, 0,  0,  32, 12,   2, 1002, 0, 0,  33, 13,
                             3,  1003, 0, 0,    34, 14, 0,  1004, 0, 0,    1, 15, 20};
  for (int col = 1; col < kComment; ++col) {
    EXPECT_EQ(ValueOf(Stage(col, 3)), expected[col - 1]) << col;
  }
  EXPECT_EQ(TextOf(Stage(kComment, 3)), "受");
  EXPECT_EQ(ReadOldest(head + "1000" + record.substr(1)), 1);
  EXPECT_EQ(ReadOldest(head + record.substr(0, 80)), 1);
  EXPECT_EQ(ReadOldest("\"QV\"\r\n"), 0);
  EXPECT_EQ(forms.LastBox(), Text(21) + "\n" + Text(20));
}

TEST_F(PosiFile, FaultsOfTheDeviceMayPass) {
  virt.files.Put(kPath, kHead + kWords + Line("1"));
  virt.files.FailAt(1, FileFault::Other);
  EXPECT_EQ(ReadPosiFile(kPath, trouble), 1);
  EXPECT_TRUE(trouble.may_pass);
  EXPECT_EQ(trouble.words, Text(5914, "job.qvd"));
  EXPECT_TRUE(AppState.PosiFileNotOurs);
  EXPECT_EQ(Read(kHead + kWords + Line("1", "a\xfe")), 1);
  EXPECT_EQ(trouble.words, Text(6320, "job.qvd", "5"));
  EXPECT_FALSE(trouble.may_pass);
  EXPECT_EQ(ReadPosiFile("/data/none.qvd", trouble), 1);
  EXPECT_EQ(trouble.words, Text(5910, "none.qvd"));
}

TEST_F(PosiFile, APositionOutOfAllBoundsStaysSo) {
  SetRange(5, 5);
  const struct {
    const char* staged;
    std::int32_t pulses;
  } rows[] = {{" 1000", 1000}, {"262144", 262144},          {"-5", -5}, {"1e9", 1},
              {"9.5e1", 10},   {"99999999999", 2147483647}, {"", 0},    {"x", 0}};
  for (const auto& row : rows) {
    PosiTable.PosiStage[kPosi][5] = std::string(row.staged);
    PosiStageCommit();
    EXPECT_EQ(PosiTable.PosiPulse[0][5], row.pulses) << row.staged;
    EXPECT_EQ(ValueOf(PosiTable.PosiRec[kPosi][5]), row.pulses) << row.staged;
  }
}

}  // namespace
}  // namespace tr7
