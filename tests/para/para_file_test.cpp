#include "para/para_file.h"

#include <set>

#include "para/para_actuator.h"
#include "para/para_axis_show.h"
#include "para/para_content.h"
#include "para/para_file_flow.h"
#include "para/para_show.h"
#include "para/std_lists.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/job.pmt";

/// A file whose every item tells its axis and its row.
std::string NumberedFile() {
  const std::tuple<const char*, int, int> sections[] = {
      {"HOME", 1, 6}, {"AXIS", 7, 13}, {"PG", 14, 15}, {"ETC", 16, 24}, {"SPECIAL", 25, 34}};
  const std::set<int> one_value{16, 17, 18, 19, 25, 26, 27, 31, 32, 33, 34};
  std::string text = "\"QV-R7\",\"PRM\"\r\n5\r\n";
  for (const auto& [tag, first, last] : sections) {
    text += std::string("\"") + tag + "\"," + std::to_string(last - first + 1) + ",4\r\n";
    for (int row = first; row <= last; ++row) {
      const std::string n = std::to_string(row / 10) + std::to_string(row % 10);
      text += "1" + n +
              (one_value.contains(row) ? ",0,0,0\r\n" : ",2" + n + ",3" + n + ",4" + n + "\r\n");
    }
  }
  return With(text, "113,213,313,413", "\" 28L100\",\"E35H200\",\"42L050\",\"\"");
}

const std::string kLines = NumberedFile();

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

TEST_F(ParaFile, TheHeadersSayWhatIsRead) {
  const struct {
    const char* what;
    std::string bytes;
    std::size_t row, column;
    std::string item;
    std::string last;  ///< row 34 of the first axis
  } rows[] = {
      {"six sections: a tag more", With(kLines, "\n5\r", "\n6\r") + "\"MORE\"", 34, 3, "0", "134"},
      {"a row more shifts those after it", With(kLines, "HOME\",6,4", "HOME\",7,4\r\n1,2,3,4"), 2,
       0, "101", "133"},
      {"five columns",
       With(With(kLines, "\"PG\",2,4", "\"PG\",2,5"), "414\r\n115,215,315,415",
            "414,514\r\n115,215,315,415,515"),
       15, 4, "515", "134"},
      {"as many rows as there are",
       With(kLines, "\"SPECIAL\",10,4", "\"SPECIAL\",16,4\r\n1,,,,2,,,,3,,,,4,,,,5,,,,6,,,"), 40, 0,
       "134", "128"},
      {"an empty item", With(kLines, "101,", ","), 1, 0, "", "134"}};
  for (const auto& row : rows) {
    ASSERT_EQ(Read(row.bytes), 0) << row.what << ": " << ParaFlags.FileFaultText;
    EXPECT_EQ(Slot(row.row, row.column), row.item) << row.what;
    EXPECT_EQ(Slot(34), row.last) << row.what;
  }
}

TEST_F(ParaFile, ADamagedFileSaysWhere) {
  const std::string head = Text(6451);
  const auto section = [](const char* tag) { return Text(6150, tag); };
  const struct {
    const char* what;
    std::string bytes;
    int line;
    std::string words;
  } rows[] = {{"no line to the end", "\r\n", 1, head},
              {"a count that is none", With(kLines, "\n5\r", "\nfive\r"), 2, head},
              {"another tag", With(kLines, "\"PG\"", "\"ETC\""), 18, Text(6334, "ETC", "PG")},
              {"cut short in a row", UpTo(kLines, "409"), 13, section("AXIS")},
              {"a row more than there are", With(kLines, "\"SPECIAL\",10", "\"SPECIAL\",17"), 31,
               section("SPECIAL")}};
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

// The file from which devices are taken.

// The parameter view, saved and opened.

/// The parameter view over a set from the standard lists.
class ParaFileFlow : public ParaFile {
 protected:
  ParaFileFlow() {
    for (DevSettingRecord& device : DevSettei) SetDevice(device, " 28", "L", 100);
    EXPECT_EQ(ReadDeviceListNew(), 0);
    EXPECT_EQ(IniParaFromStd(), 0);
    FillParaLists();
    InstallActuatorLists();
    ParametaHyoji();
    MarkParaSaved();
  }
  int Save(const std::optional<std::string>& answer = kPath) {
    forms.boxes.clear();
    forms.file_answers = {answer};
    return SaveParaToFile();
  }
  void Open(const std::optional<std::string>& answer = kPath) {
    forms.boxes.clear();
    forms.file_answers = {answer};
    OpenParaFile();
  }
  FrmParameta2& f = frmParameta2;
};

TEST_F(ParaFileFlow, SavedOpenedAndSavedAgainIsTheSame) {
  f.txtHomeOffset[2].Text = "1234";
  f.txtAxisMmStroke[1].Text = "99.5";
  EXPECT_TRUE(ParaIsChanged());
  ASSERT_EQ(Save(), 0);
  EXPECT_FALSE(ParaIsChanged());
  EXPECT_EQ(Boxes(), Texts{Text(14)});
  EXPECT_TRUE(forms.file_dialogs.at(0).Save && forms.file_dialogs[0].OverwritePrompt);
  EXPECT_EQ(forms.file_dialogs[0].ProposedName, "qvtr7prm1.pmt");

  const std::string bytes = Saved();
  const ParamSetRecord set = ParamSet;
  ParamSet = ParamSetRecord{};
  ParametaHyoji();
  Open();
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_EQ(f.txtHomeOffset[2].Text, "1234");
  EXPECT_EQ(f.txtAxisMmStroke[1].Text, " 99.500");
  EXPECT_FALSE(ParaIsChanged());
  EXPECT_FALSE(forms.file_dialogs.back().Save);
  ASSERT_EQ(Save(), 0);
  EXPECT_EQ(Saved(), bytes);
  EXPECT_EQ(ParamSet, set);
}

TEST_F(ParaFileFlow, OnlyAWholeAndGoodViewIsSaved) {
  f.lblAxis[3].Caption = "AXIS4";
  f.lblHomePush.Caption = "PUSH";
  f.comboActSize[0].ListIndex = -1;  // behind it in the order of the Tab key
  f.txtHomePush[3].Text.clear();
  EXPECT_EQ(Save(), 1);
  EXPECT_EQ(Boxes(), Texts{Text(7) + "\n" + Text(8) + "\n\nAXIS4 PUSH"});
  EXPECT_EQ(forms.focus, &f.txtHomePush[3]);
  f.comboActSize[0].ListIndex = 0;
  f.txtHomePush[3].Text = "256";
  EXPECT_EQ(Save(), 1);
  EXPECT_EQ(Boxes(), Texts{Text(9) + "\n" + Text(10)});
  EXPECT_TRUE(forms.file_dialogs.empty());
  f.txtHomePush[3].Text = "255";
  for (const auto& answer : {std::optional<std::string>(), std::optional<std::string>("")}) {
    EXPECT_EQ(Save(answer), 1);
    EXPECT_EQ(Boxes(), Texts{});
  }
  EXPECT_TRUE(ParaIsChanged());
}

TEST_F(ParaFileFlow, AFileThatCannotBeOpenedChangesNothing) {
  ASSERT_EQ(Save(), 0);
  const std::string good = Saved(), failed = Text(681) + "\n\n";
  f.txtHomeOffset[0].Text = "77";
  const ParamSetRecord before = ParamSet;
  virt.files.Put(kPath, With(good, "\"HOME\",6,4\r\n400,", "\"HOME\",6,4\r\n1e,"));
  Open();
  EXPECT_EQ(Boxes(), Texts{failed + Text(6151, "OFFSET")});
  EXPECT_TRUE(ParaFlags.ParaFileBad);
  Open("/data/none.pmt");
  EXPECT_EQ(Boxes(), Texts{failed + Text(5910, "none.pmt")});
  Open(std::nullopt);
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_EQ(ParamSet, before);
  EXPECT_EQ(f.txtHomeOffset[0].Text, "77");
  EXPECT_TRUE(ParaIsChanged());
  virt.files.Put(kPath, good);
  Open();
  EXPECT_FALSE(ParaFlags.ParaFileBad);
  EXPECT_EQ(f.txtHomeOffset[0].Text, "400");
}

TEST_F(ParaFileFlow, AFailedSaveIsTold) {
  virt.files.Put(kPath, "old");
  f.txtHomePush[3].Text = "255";
  virt.files.FailAt(2, FileFault::DiskFull);
  EXPECT_EQ(Save(), 1);
  EXPECT_EQ(Boxes(), Texts{Text(13) + "\n\n" + Text(5912, "job.pmt")});
  EXPECT_TRUE(ParaFlags.ParaFileWriteFailed && ParaIsChanged());
  EXPECT_EQ(Saved(), "old");
}

}  // namespace
}  // namespace tr7
