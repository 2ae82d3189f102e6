#include "posi/posi_file.h"

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
    SetLoadedPosiRange({first, last});
    SetOperationRange({first, last});
  }
  Variant& Field(int col, std::size_t number) {
    return PosiTable.PosiRec[static_cast<std::size_t>(col)][number];
  }
  const Variant& Stage(int col, std::size_t number) const {
    return PosiTable.PosiStage[static_cast<std::size_t>(col)][number];
  }
  int Read(const std::string& bytes, bool oldest = false) {
    virt.files.Put(kPath, bytes);
    return oldest ? ReadOldPosiFile(kPath, trouble) : ReadPosiFile(kPath, trouble);
  }
  /// Numbers of the file that was read last.
  static std::string Numbers() {
    return std::to_string(AppState.FileFirstNo) + "-" + std::to_string(AppState.FileLastNo);
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
  ASSERT_EQ(SaveFileAs2(kPath, trouble), 0) << trouble.words;
  EXPECT_EQ(virt.files.Content(kPath), "\"QV-R7\"\r\n\"POS MODE\"\r\n" + head + records);
}

TEST_F(PosiFile, AnyOrderOfNumbersReadsAsItStands) {
  // Numbers as they come, and those left out of 4 to 11.
  const std::tuple<std::string, const char*, const char*> rows[] = {
      {Line("9") + Line("4") + Line("7"), "9-7", "5-6, 8, 10-11"},
      {Line("4") + Line("4"), "4-4", "5-11"},
      {Line("\" 12\""), "12-12", "4-11"},
      {Line("1") + Line("999"), "1-999", "4-11"},
      {"5" + Line("").substr(0, 40) + "\r\n" + Line("").substr(41), "5-5", "4, 6-11"}};
  for (const auto& [records, numbers, left_out] : rows) {
    ASSERT_EQ(Read(kHead + kWords + records), 0) << trouble.words;
    EXPECT_EQ(Numbers(), numbers);
    EXPECT_EQ(NumbersLeftOut(4, 11), left_out);
    EXPECT_EQ(ValueOf(Stage(kVel, 8)), 30) << "nothing of an earlier file is left";
  }
}

TEST_F(PosiFile, ModesAndWords) {
  const std::tuple<std::string, std::string, bool, const char*> rows[] = {
      {"PRG MODE", kWords, true, "OLD NEW"},
      {"prg mode", "\"NEW\",\"x\",\"\",\"OLD\"\r\n", false, "NEW x"},
      {"PRG MODE", "", true, "OLD OLD"}};
  for (const auto& [mode, words, program, ages] : rows) {
    const std::string head = "\"QV-R7\"\r\n\"" + mode + "\"\r\n\"A\",\"B\",\"\",\"\"\r\n";
    ASSERT_EQ(Read(head + words + Line("5")), 0) << trouble.words;
    EXPECT_EQ(bool(AppState.FileIsPrgMode), program);
    EXPECT_EQ(DevSettei[0].NewTypeWord + " " + DevSettei[1].NewTypeWord, ages);
    EXPECT_EQ(Numbers(), "5-5") << "the items taken for words are read once more";
    EXPECT_EQ(FileDevice[1], "B");
  }
}

TEST_F(PosiFile, ADamagedFileSaysWhere) {
  const std::string start = kHead + kWords;
  const auto at = [](int line, const std::string& words) {
    return Text(6321, std::to_string(line), words);
  };
  const std::pair<std::string, std::string> rows[] = {
      {kHead + "\"NEW\",\"OLD\"", at(4, Text(6451))},
      {start, at(4, Text(6454))},
      {start + Line("3") + Line("4").substr(0, 50), at(6, Text(6452, "4"))},
      {start + Line("1") + Line("1000"), at(6, Text(6453, "1000"))},
      {start + Line("1.5"), at(5, Text(6453, "1.5"))},
      {start + Line("1", "a\xfe"), Text(6320, "job.qvd", "5")},
      {start + std::string(100u << 20, '1'), Text(5913, "job.qvd")}};
  for (const auto& [bytes, words] : rows) {
    AppState.PosiFileNotOurs = False;
    EXPECT_EQ(Read(bytes), 1) << words;
    EXPECT_TRUE(AppState.PosiFileNotOurs && !trouble.may_pass) << words;
    EXPECT_EQ(trouble.words, words);
  }
  virt.files.Put(kPath, start + Line("1"));
  virt.files.FailAt(1, FileFault::Other);
  EXPECT_EQ(ReadPosiFile(kPath, trouble), 1);
  EXPECT_TRUE(trouble.may_pass) << "a fault of the device";
  EXPECT_EQ(trouble.words, Text(5914, "job.qvd"));
}

TEST_F(PosiFile, TheOldestLayout) {
  const std::string head = "\"QV-R7\"\r\n\"QV- 28L-100\",\"\",\"\",\"\"\r\n";
  const std::string record =
      "3,\" 31\",\" 11\",\" 1\",\" 1001\",\" 32\",\" 12\",\" 2\",\" 1002\","
      "33,13,3,1003,34,14,0,1004,1,15,20,\"\x8e\xf3\"\r\n";
  AppState.FileIsPrgMode = True;
  ASSERT_EQ(Read(head + record, true), 0) << trouble.words;
  EXPECT_FALSE(AppState.FileIsPrgMode);
  EXPECT_EQ(FileDevice[0] + DevSettei[3].NewTypeWord, "QV- 28L-100OLD");
  EXPECT_EQ(Numbers(), "3-3");
  const double expected[] = {31, 11,   1, 1001, 0,  0,  32, 12,   2, 1002, 0, 0,  33, 13,
                             3,  1003, 0, 0,    34, 14, 0,  1004, 0, 0,    1, 15, 20};
  for (int col = 1; col < kComment; ++col) {
    EXPECT_EQ(ValueOf(Stage(col, 3)), expected[col - 1]) << col;
  }
  EXPECT_EQ(TextOf(Stage(kComment, 3)), "受");
}

TEST_F(PosiFile, ACharacterThatTheFileCannotHoldIsNamedWithItsPosition) {
  PutTwoLines();
  Field(kComment, 2) = std::string("ok é");
  virt.files.Put(kPath, "old");
  frmPosi.PosiChanged = True;
  PosiTable.PosiLineBad[1] = True;  // left out, it counts as none
  EXPECT_EQ(SaveFileAs2(kPath, trouble), 1);
  EXPECT_EQ(trouble.words, "Position No. 2 holds the character \"é\", which the file cannot hold.");
  EXPECT_FALSE(trouble.may_pass);
  EXPECT_EQ(virt.files.Content(kPath), "old");
  EXPECT_TRUE(frmPosi.PosiChanged);
  EXPECT_EQ(PosiTable.Name, "");
}

}  // namespace
}  // namespace tr7
