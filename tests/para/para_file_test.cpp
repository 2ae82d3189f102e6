#include "para/para_file.h"

#include "para/para_file_flow.h"
#include "para/param_set.h"
#include "state/text.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/job.pmt";

/// What the writer makes of `FillParamSet`.
const std::string kLines =
    "\"QV-R7\",\"PRM\"\r\n"
    "5\r\n"
    "\"HOME\",6,4\r\n"
    "101,201,301,401\r\n"
    "102,202,302,402\r\n"
    "103,203,303,403\r\n"
    "104,204,304,404\r\n"
    "105,205,305,405\r\n"
    "106,206,306,406\r\n"
    "\"AXIS\",7,4\r\n"
    "107,207,307,407\r\n"
    "108,208,308,408\r\n"
    "109,209,309,409\r\n"
    "110,210,310,410\r\n"
    "111,211,311,411\r\n"
    "112,212,312,412\r\n"
    "\" 28L100\",\"E35H200\",\"42L050\",\"\"\r\n"
    "\"PG\",2,4\r\n"
    "114,214,314,414\r\n"
    "115,215,315,415\r\n"
    "\"ETC\",9,4\r\n"
    "116,0,0,0\r\n"
    "117,0,0,0\r\n"
    "118,0,0,0\r\n"
    "119,0,0,0\r\n"
    "120,220,320,420\r\n"
    "121,221,321,421\r\n"
    "122,222,322,422\r\n"
    "123,223,323,423\r\n"
    "124,224,324,424\r\n"
    "\"SPECIAL\",10,4\r\n"
    "125,0,0,0\r\n"
    "126,0,0,0\r\n"
    "127,0,0,0\r\n"
    "128,228,328,428\r\n"
    "129,229,329,429\r\n"
    "130,230,330,430\r\n"
    "131,0,0,0\r\n"
    "132,0,0,0\r\n"
    "133,0,0,0\r\n"
    "134,0,0,0\r\n";

/// Every item tells its axis and its row.
void FillParamSet() {
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = kAxes; axis-- > 0;) {
      SetParaValue(ParamSet, row, axis, 100.0 * static_cast<double>(axis + 1) + row);
    }
  }
  // A controller row has one slot, which the first axis was the last to fill.
  ParamSet.Actuator = {" 28L100", "E35H200", "42L050", ""};
  for (int axis = 0; axis < kAxes; ++axis) CutActuator(ParamSet, axis);
}

std::string With(std::string text, const std::string& part, const std::string& other) {
  return text.replace(text.find(part), part.size(), other);
}

std::string UpTo(const std::string& text, const std::string& part) {
  return text.substr(0, text.find(part));
}

class ParaFile : public StateTest {
 protected:
  int Read(const std::string& bytes) {
    virt.files.Put(kPath, bytes);
    ParaFlags.ParaFileBad = False;
    return ReadParaTable(kPath);
  }
  std::string Saved() const { return virt.files.Content(kPath).value_or("(none)"); }
  static std::string Slot(std::size_t row, std::size_t column = 0) {
    return TextOf(ParaTable[column][row]);
  }
};

TEST_F(ParaFile, TheWriterMakesTheseLines) {
  FillParamSet();
  AppState.AxisMuko[3] = True;  // an absent axis is written all the same
  ASSERT_EQ(WriteParaFile(kPath), 0);
  EXPECT_EQ(Saved(), kLines);
  EXPECT_FALSE(ParaFlags.ParaFileWriteFailed);
}

TEST_F(ParaFile, WhatWasSavedComesBack) {
  FillParamSet();
  ParamSet.HomeOffset = {-0.5, 1e15, 0.001, 262143};
  ParamSet.PgAlarm[1] = -32768;
  ParamSet.AxisPulse[2] = -2147483647;
  ParamSet.Actuator[3] = "\"ｱ,軸";
  CutActuator(ParamSet, 3);
  ASSERT_EQ(WriteParaFile(kPath), 0);
  const std::string bytes = Saved();
  const ParamSetRecord set = ParamSet;
  ParamSet = ParamSetRecord{};
  ASSERT_EQ(ReadParaTable(kPath), 0) << ParaFlags.FileFaultText;
  EXPECT_EQ(Slot(0), kPath);
  ASSERT_EQ(TakeParamTable(), 0);
  EXPECT_EQ(ParamSet, set);
  ASSERT_EQ(WriteParaFile(kPath), 0);
  EXPECT_EQ(Saved(), bytes);
  EXPECT_NE(bytes.find("\r\n-0.5,1000000000000000,0.001,262143\r\n"), std::string::npos) << bytes;
}

TEST_F(ParaFile, LineBreaksAndQuotesMeanNothing) {
  ASSERT_EQ(Read(kLines), 0);
  const ParaTableRecord table = ParaTable;
  std::string one_line, one_each, quoted = With(kLines, "101,", "\"101\" ,");
  for (const char c : kLines) {
    if (c == '\r') continue;
    one_line += c == '\n' ? ',' : c;
    one_each += c == ',' ? '\n' : c;
  }
  one_line.pop_back();
  for (const std::string& bytes : {one_line, one_each, quoted, kLines + "what follows, \"is"}) {
    ASSERT_EQ(Read(bytes), 0) << bytes;
    EXPECT_EQ(TextOf(ParaTable[0][1]), "101");
    ParaTable[0][1] = 101.0;
    EXPECT_EQ(ParaTable, table) << bytes;
  }
}

TEST_F(ParaFile, TheHeadersSayWhatIsRead) {
  const struct {
    const char* what;
    std::string bytes;
    std::size_t row, column;
    std::string item;
    std::string last;  ///< row 34 of the first axis
  } rows[] = {
      {"as written", kLines, 13, 1, "E35H200", "134"},
      {"four sections", With(kLines, "\n5\r", "\n4\r"), 24, 3, "424", ""},
      {"no section", "\"QV-R7\",\"PRM\",0", 1, 0, "", ""},
      {"no count", "\"QV-R7\",\"PRM\",,1", 1, 0, "", ""},
      {"six sections: a tag more", With(kLines, "\n5\r", "\n6\r") + "\"MORE\"", 34, 3, "0", "134"},
      {"eight: items pass as tags", With(kLines, "\n5\r", "\n8\r") + "M,1,4", 34, 3, "0", "134"},
      {"a row more shifts those after it", With(kLines, "HOME\",6,4", "HOME\",7,4\r\n1,2,3,4"), 2,
       0, "101", "133"},
      {"a row less too", With(With(kLines, "\"PG\",2,4", "\"PG\",1,4"), "115,215,315,415\r\n", ""),
       15, 0, "116", ""},
      {"three columns",
       With(With(kLines, "\"PG\",2,4", "\"PG\",2,3"), "314,414\r\n115,215,315,415",
            "314\r\n115,215,315"),
       14, 3, "", "134"},
      {"five columns",
       With(With(kLines, "\"PG\",2,4", "\"PG\",2,5"), "414\r\n115,215,315,415",
            "414,514\r\n115,215,315,415,515"),
       15, 4, "515", "134"},
      {"as many rows as there are",
       With(kLines, "\"SPECIAL\",10,4", "\"SPECIAL\",16,4\r\n1,,,,2,,,,3,,,,4,,,,5,,,,6,,,"), 40, 0,
       "134", "128"},
      {"no columns", UpTo(With(With(kLines, "\n5\r", "\n1\r"), ",6,4", ",6,0"), "101"), 1, 0, "",
       ""},
      {"a device text without its blank", With(kLines, "\" 28L100\"", "28L100"), 13, 0, "28L100",
       "134"},
      {"an empty item", With(kLines, "101,", ","), 1, 0, "", "134"}};
  for (const auto& row : rows) {
    ASSERT_EQ(Read(row.bytes), 0) << row.what << ": " << ParaFlags.FileFaultText;
    EXPECT_FALSE(ParaFlags.ParaFileBad) << row.what;
    EXPECT_EQ(Slot(row.row, row.column), row.item) << row.what;
    EXPECT_EQ(Slot(34), row.last) << row.what;
    EXPECT_EQ(Slot(0), kPath) << row.what;
  }
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(ParaFile, ADamagedFileSaysWhere) {
  const std::string head = Text(6451);
  const auto section = [](const char* tag) { return Text(6150, tag); };
  const struct {
    const char* what;
    std::string bytes;
    int line;
    std::string words;
  } rows[] = {{"empty", "", 1, head},
              {"a count that is none", With(kLines, "\n5\r", "\nfive\r"), 2, head},
              {"another tag", With(kLines, "\"PG\"", "\"ETC\""), 18, Text(6334, "ETC", "PG")},
              {"cut short in a row", UpTo(kLines, "409"), 13, section("AXIS")},
              {"rows below 0", With(kLines, "\"PG\",2", "\"PG\",-2"), 18, section("PG")},
              {"a row more than there are", With(kLines, "\"SPECIAL\",10", "\"SPECIAL\",17"), 31,
               section("SPECIAL")},
              {"a huge column count", With(kLines, "\"HOME\",6,4", "\"HOME\",6,2147483647"), 3,
               section("HOME")}};
  for (const auto& row : rows) {
    ParaTable[3][40] = std::string("of before");
    EXPECT_EQ(Read(row.bytes), 1) << row.what;
    EXPECT_TRUE(ParaFlags.ParaFileBad) << row.what;
    const std::string words = Text(6321, std::to_string(row.line), row.words);
    EXPECT_EQ(ParaFlags.FileFaultText, words) << row.what;
    EXPECT_EQ(Slot(40, 3), "") << row.what;
  }
  EXPECT_TRUE(forms.boxes.empty()) << "the caller tells";
}

TEST_F(ParaFile, AFileOfAnotherKindIsTold) {
  const struct {
    const char* bytes;
    std::string reason;  ///< behind the box's own words
  } rows[] = {
      {"\"QV-R8\",\"PRM\",5", ""},
      {"\"QV-R7\",\"prm\",x", ""},
      {"\"QV-R7\"\r\n\"POS MODE\"\r\n\"\",\"\"",
       "\n\nThe file \"job.pmt\" is a position data file."},
      {"\"QV-R7\"\r\n\"QV- 28L-100\",\"\"", "\n\nThe file \"job.pmt\" is a position data file."}};
  for (const auto& row : rows) {
    forms.boxes.clear();
    EXPECT_EQ(Read(row.bytes), 1);
    EXPECT_TRUE(ParaFlags.ParaFileBad);
    EXPECT_EQ(ParaFlags.FileFaultText, "");
    ASSERT_EQ(forms.boxes.size(), 1u) << row.bytes;
    EXPECT_EQ(forms.LastBox(), Text(22) + "\n" + Text(20) + row.reason);
    EXPECT_EQ(Slot(0), "") << "no file was read";
  }
}

TEST_F(ParaFile, AnImpossibleValueIsNamedByItsRow) {
  const struct {
    const char *item, *other;
    int row;
  } rows[] = {{"101,", "101,", 0},          {"401", "", 0},
              {"402", "40000", 2},          {"309", "9e9", 9},
              {"\" 28L100\"", "7", 0},      {"\r\n131", "\r\nB", 31},
              {"134,0,0,0", "134,x,y,z", 0}};
  for (const auto& row : rows) {
    ASSERT_EQ(Read(With(kLines, row.item, row.other)), 0);
    EXPECT_EQ(RefusedParaRow(), row.row) << row.other;
  }
}

// The file from which devices are taken.

class ParaForDevice : public ParaFile {
 protected:
  /// Opens what stands under the path; the time it took in 100 ms.
  std::int64_t Open(int expected) {
    forms.boxes.clear();
    forms.file_answers = {std::string(kPath)};
    const std::int64_t start_us = pump.NowUs();
    EXPECT_EQ(OpenParaForDevice(), expected);
    EXPECT_FALSE(AppState.ComBusy);
    return (pump.NowUs() - start_us) / 100'000;
  }
};

TEST_F(ParaForDevice, AGoodFileIsTaken) {
  FillParamSet();
  const ParamSetRecord set = ParamSet;
  ParamSet = ParamSetRecord{};
  virt.files.Put(kPath, kLines);
  EXPECT_EQ(Open(0), 0);
  EXPECT_EQ(ParamSet, set);
  EXPECT_EQ(ParamSet.ActSize[2], " 42");
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(ParaForDevice, FourAttempts) {
  const ParamSetRecord before = ParamSet;
  virt.files.Put(kPath, "not, one, of ours");
  EXPECT_EQ(Open(1), 3);
  ASSERT_EQ(forms.boxes.size(), 5u);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(forms.boxes[i].Text, Text(22) + "\n" + Text(20));
  EXPECT_EQ(forms.LastBox(), "Fail to open parameter file.");

  virt.files.Put(kPath, With(kLines, "\"PG\"", "\"ETC\""));
  EXPECT_EQ(Open(1), 3);
  ASSERT_EQ(forms.boxes.size(), 1u);
  EXPECT_EQ(forms.LastBox(), Text(681) + "\n\n" + Text(6321, "18", Text(6334, "ETC", "PG")));

  virt.files.Put(kPath, "\"QV-R7\"");
  EXPECT_EQ(Open(1), 3);
  EXPECT_EQ(forms.LastBox(), Text(681) + "\n\n" + Text(6321, "1", Text(6451)));
  virt.files.Remove(kPath);
  EXPECT_EQ(Open(1), 3);
  EXPECT_EQ(forms.LastBox(), Text(681) + "\n\n" + Text(5910, "job.pmt"));
  EXPECT_EQ(ParamSet, before);

  virt.files.Put(kPath, kLines);
  virt.files.FailAt(1, FileFault::Other);
  EXPECT_EQ(Open(0), 1) << "a fault that passes";
  EXPECT_FALSE(ParaFlags.ParaFileBad);
  EXPECT_TRUE(forms.boxes.empty());
  EXPECT_EQ(ParamSet.PputWrite, 134);
}

TEST_F(ParaForDevice, AnImpossibleValueChangesNothing) {
  const ParamSetRecord before = ParamSet;
  virt.files.Put(kPath, With(kLines, "\r\n134", "\r\n40000"));
  EXPECT_EQ(Open(1), 0) << "another attempt would read the same";
  EXPECT_EQ(forms.LastBox(), Text(681) + "\n\n" + Text(6151, "PPUT Write"));
  EXPECT_TRUE(ParaFlags.ParaFileBad);
  EXPECT_EQ(ParamSet, before);
}

}  // namespace
}  // namespace tr7
