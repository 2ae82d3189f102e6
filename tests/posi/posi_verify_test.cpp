#include "posi/posi_verify.h"

#include "device/dev_setting.h"
#include "forms/frm_syogo_kekka.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_syogo.h"
#include "posi/posi_table.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/other.qvd";

class SyogoTest : public StateTest {
 protected:
  void SetUp() override {
    PosiTableInit();
    PosiTable.StageHolds.set();
    AppState.PosiFirstNo = AppState.PosiFromNo = 5;
    AppState.PosiLastNo = AppState.PosiToNo = 6;
  }
  /// Flagged columns of position 5 after a comparison, such as "1 28".
  static std::string Flagged() {
    std::string cols;
    for (std::size_t col = 1; col < kPosiColumns; ++col) {
      if (PosiTable.SyogoCell[col][5]) cols += (cols.empty() ? "" : " ") + std::to_string(col);
    }
    return cols;
  }
  static Variant& Stage(int col) { return PosiTable.PosiStage[static_cast<std::size_t>(col)][5]; }
  static void SetBoth(int col, double value) {
    Stage(col) = value;
    PosiTable.PosiRec[static_cast<std::size_t>(col)][5] = value;
  }
};

TEST_F(SyogoTest, EveryColumnOfTheMode) {
  for (const bool program_mode : {false, true}) {
    AppState.CtMode = program_mode;
    for (int col = 1; col <= kComment; ++col) {
      SetUp();
      const int axis = AxisOfColumn(col);
      const int field = axis < 0 ? 0 : FieldOfColumn(col);
      for (int a = 0; a < kAxes; ++a) SetBoth(AxisBase(a) + kWay, 1);
      Stage(col) = field == kWay ? 2.0 : 17.0;
      const bool pair = field == kWay || field == kPosi;
      const bool differs = col != kComment && (!program_mode || pair);
      std::string expected;
      if (differs && program_mode) {
        expected = std::to_string(AxisBase(axis) + kWay) + " " +
                   std::to_string(AxisBase(axis) + kPosi) + " 28";
      } else if (differs) {
        expected = std::to_string(col) + " 28";
      }
      EXPECT_EQ(PosiDataSyogoProc(), differs ? 1 : 0) << col;
      EXPECT_EQ(Flagged(), expected) << col;
      EXPECT_EQ(PosiTable.SyogoCount, differs ? 1 : 0) << col;
      if (axis < 0) continue;
      AppState.AxisMuko[static_cast<std::size_t>(axis)] = True;
      EXPECT_EQ(PosiDataSyogoProc(), 0) << "axis not in use, column " << col;
      EXPECT_EQ(Flagged(), "");
      AppState.AxisMuko.fill(False);
    }
  }
}

TEST_F(SyogoTest, LinesThatDoNotMoveInProgramMode) {
  const struct {
    double way, pulses, staged_way, staged_pulses;
    const char* flagged;
  } rows[] = {{0, 100, 0, 200, ""},        {1, 100, 1, 100, ""},
              {1, 100, 1, 200, "9 10 28"}, {0, 100, 1, 100, "9 10 28"},
              {1, 100, 0, 100, "9 10 28"}, {2, 100, 3, 100, "9 10 28"}};
  AppState.CtMode = True;
  for (const auto& row : rows) {
    PosiTable.PosiRec[9][5] = row.way;
    PosiTable.PosiPulse[1][5] = static_cast<std::int32_t>(row.pulses);
    Stage(9) = row.staged_way;
    Stage(10) = row.staged_pulses;
    PosiDataSyogoProc();
    EXPECT_EQ(Flagged(), row.flagged) << row.way << " " << row.staged_way;
  }
  AppState.CtMode = False;
  PosiTable.PosiRec[9][5] = Stage(9) = 0.0;
  Stage(10) = 200.0;
  PosiDataSyogoProc();
  EXPECT_EQ(Flagged(), "10 28") << "position mode compares pulses whatever the way";
}

TEST_F(SyogoTest, ValuesCompareAsNumbersWithoutTolerance) {
  const struct {
    Variant staged, held;
    bool equal;
  } rows[] = {{std::string(" 30"), 30.0, true}, {30.0, std::string("30 "), true},
              {std::string(""), 0.0, true},     {30.001, 30.0, false},
              {std::string("x"), 30.0, false},  {std::string("30 x"), 30.0, true}};
  for (const auto& row : rows) {
    Stage(kVel) = row.staged;
    PosiTable.PosiRec[kVel][5] = row.held;
    EXPECT_EQ(PosiDataSyogoProc() == 0, row.equal) << TextOf(row.staged);
  }
}

TEST_F(SyogoTest, OnlyTheRangeIsCompared) {
  PosiTable.PosiStage[kVel][4] = PosiTable.PosiStage[kVel][7] = 1.0;
  EXPECT_EQ(PosiDataSyogoProc(), 0);
  PosiTable.PosiStage[kVel][5] = PosiTable.PosiStage[kVel][6] = 1.0;
  EXPECT_EQ(PosiDataSyogoProc(), 1);
  EXPECT_EQ(PosiTable.SyogoCount, 2);
}

TEST_F(SyogoTest, Overlap) {
  const struct {
    std::int16_t first, last, file_first, file_last, from, to;  ///< from 0: none
  } rows[] = {{1, 10, 3, 5, 3, 5}, {3, 5, 1, 10, 3, 5}, {1, 5, 5, 9, 5, 5}, {1, 5, 6, 9, 0, 0},
              {6, 9, 1, 5, 0, 0},  {1, 9, 7, 3, 0, 0},  {0, 0, 1, 9, 0, 0}, {1, 9, 1, 9, 1, 9}};
  for (const auto& row : rows) {
    AppState.PosiFirstNo = row.first;
    AppState.PosiLastNo = row.last;
    AppState.FileFirstNo = row.file_first;
    AppState.FileLastNo = row.file_last;
    ASSERT_EQ(SyogoOverlap(), row.from == 0 ? 1 : 0) << row.first << " " << row.file_first;
    if (row.from == 0) continue;
    EXPECT_EQ(AppState.SyogoFromNo, row.from);
    EXPECT_EQ(AppState.SyogoToNo, row.to);
  }
}

class VerifyTest : public FlowTest {
 protected:
  void Start() {
    StartOnline();
    ReadRange(1, 5);
    virt.files.Put(kPath, "");
    forms.file_answers = {std::string(kPath)};
    frmPosi.PosiChanged = True;
    // The table as a file, by way of the save flow.
    AnswerRange("frmSelectPosiNo3", 2, 4);
    forms.answers = {MsgAnswer::Ok};
    frmPosi.cmdPosiSaveAs.Press();
    port.sent.clear();
    forms.boxes.clear();
    forms.modals.clear();
    forms.on_modal["frmSyogoKekka"] = [this](View& view) {
      const Grid& result = frmSyogoKekka.flgdKekka;
      EXPECT_TRUE(frmSyogoKekka.SyogoViewIsVerify);
      EXPECT_EQ(view.Caption, Text(2301));
      for (int row = 2; row < result.Rows(); ++row) {
        for (int col = 1; col < result.Cols(); ++col) {
          if (!result.IsMarked(row, col)) continue;
          seen += result.Text(row, 0) + "/" + std::to_string(col) + " " + result.Text(row, col) +
                  " (" + result.CellToolTip(row, col) + ") ";
        }
      }
      view.Visible = false;
    };
  }
  void Cell(int number, int col, const std::string& text) {
    frmPosi.flgdData.SetText(RowOfPosition(number), col, text);
  }
  void VerifyWithFile(int first, int last) {
    forms.file_answers = {std::string(kPath)};
    AnswerRange("frmSelectPosiNo4", first, last);
    seen.clear();
    frmPosi.cmdPosiFileVerify.Press();
    EXPECT_EQ(PosiTable.SyogoCount, 0);
    EXPECT_EQ(AppState.PosiFromNo, 1);
    ExpectCommandsOn();
  }
  void VerifyWithCt(int first, int last) {
    AnswerRange("frmSelectPosiNo3", first, last);
    seen.clear();
    frmPosi.cmdPosiCtVerify.Press();
    EXPECT_EQ(PosiTable.SyogoCount, 0);
    EXPECT_EQ(AppState.PosiToNo, 5);
    ExpectCommandsOn();
  }
  std::string seen;  ///< the result view's marked cells with both values
};

TEST_F(VerifyTest, WithAFile) {
  Start();
  VerifyWithFile(2, 4);
  EXPECT_EQ(forms.file_dialogs.back().Title, Text(350));
  EXPECT_FALSE(forms.file_dialogs.back().Save);
  EXPECT_EQ(forms.LastBox(),
            "Data : indicated and saved into the file(other.qvd)\n\nResult of Verify - OK");
  Cell(1, kVel, "1");  // outside what the file holds
  Cell(3, kVel, "47");
  Cell(3, kAcc, "500");
  Cell(3, kComment, "differs, and does not count");
  VerifyWithFile(2, 4);
  EXPECT_EQ(seen, "3/1 47 (other.qvd: 30) 3/2 500 (other.qvd: 200) ");
  std::string gap = *virt.files.Content(kPath);
  gap.erase(gap.find("\r\n3,"), gap.find("\r\n4,") - gap.find("\r\n3,"));
  virt.files.Put(kPath, gap);
  for (const int last : {4, 3}) {
    forms.boxes.clear();
    VerifyWithFile(3, last);
    EXPECT_EQ(seen, "") << "the file holds no position 3";
    EXPECT_EQ(forms.boxes[0].Text, Text(6459, "3"));
    EXPECT_EQ(forms.boxes.size(), last == 4 ? 2u : 1u) << "nothing compared is no good result";
  }
  VerifyWithFile(4, 4);
  EXPECT_EQ(seen, "") << "the range was narrowed";
  EXPECT_EQ(forms.LastBox().substr(0, 4), "Data");
  EXPECT_EQ(port.sent, "");
}

TEST_F(VerifyTest, AFileThatCannotBeCompared) {
  Start();
  const std::string good = *virt.files.Content(kPath);
  std::string program = good;
  program.replace(program.find("POS MODE"), 8, "PRG MODE");
  const struct {
    const char* what;
    std::string bytes, words;
  } rows[] = {
      {"other kind", "\"QV-R8\"\r\n", Text(21) + "\n" + Text(20)},
      {"damaged", good.substr(0, 200), Text(484) + "\n\n" + Text(6321, "5", Text(6452, "2"))},
      {"other mode", program, Text(330) + "\n" + Text(331)}};
  const auto settei = DevSettei[0].NewTypeWord;
  for (const auto& row : rows) {
    virt.files.Put(kPath, row.bytes);
    forms.boxes.clear();
    VerifyWithFile(2, 4);
    EXPECT_EQ(forms.LastBox(), row.words) << row.what;
    EXPECT_EQ(forms.boxes.size(), 1u);
    EXPECT_EQ(DevSettei[0].NewTypeWord, settei) << "the devices under consideration are as before";
  }
  EXPECT_TRUE(forms.modals.empty());
  EXPECT_EQ(frmPosi.flgdData.Rows(), 7);
  forms.boxes.clear();
  forms.file_answers = {std::nullopt};
  frmPosi.cmdPosiFileVerify.Press();
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(VerifyTest, AFileWithoutACommonNumber) {
  Start();
  AnswerRange("frmSelectPosiNo2", 100, 101);
  forms.answers = {MsgAnswer::No, MsgAnswer::Ok};
  frmPosi.PosiChanged = True;
  frmPosi.cmdPosiRead.Press();
  forms.modals.clear();
  for (const bool ok : {true, false}) {
    forms.on_modal["frmSelectPosiNo4"] = [ok](View& view) {
      auto& range = static_cast<SelectPosiNoView&>(view);
      EXPECT_EQ(range.lblMessage.Caption, Text(342));
      EXPECT_FALSE(range.txtFromNo.Visible);
      (ok ? range.cmdOk : range.cmdCancel).Press();
    };
    forms.file_answers = {std::string(kPath)};
    frmPosi.cmdPosiFileVerify.Press();
  }
  EXPECT_EQ(forms.modals, (std::vector<std::string>{"frmSelectPosiNo4", "frmSelectPosiNo4"}));
  EXPECT_EQ(AppState.PosiFromNo, 100);
  ExpectCommandsOn();
}

TEST_F(VerifyTest, WithTheController) {
  Start();
  VerifyWithCt(2, 4);
  EXPECT_EQ(port.sent, "0RP002\r\n0RP003\r\n0RP004\r\n");
  EXPECT_EQ(forms.LastBox(), "Data : indicated and inside of controller\n\nResult of Verify - OK");
  Cell(3, kVel, "47");
  VerifyWithCt(2, 4);
  EXPECT_EQ(seen, "3/1 47 (Inside of C/T: 30) ");
  EXPECT_EQ(TextOf(PosiTable.PosiRec[kVel][3]), "47") << "the table is as the user has it";
  VerifyWithCt(4, 5);
  EXPECT_EQ(seen, "");
  EXPECT_EQ(port.IsOpen(), bool(AppState.PortOccupy));
}

TEST_F(VerifyTest, StoppedOrFailedWithTheController) {
  Start();
  pump.After(120'000, [] { frmMain.cmdComCancel.Press(); });
  VerifyWithCt(1, 5);
  EXPECT_EQ(forms.LastBox(), Text(440));
  forms.boxes.clear();
  port.Ct().SetSilent(true);
  VerifyWithCt(1, 5);
  EXPECT_EQ(forms.boxes.size(), 1u);
  EXPECT_EQ(forms.LastBox().substr(0, Text(100).size()), Text(100));
  ExpectOffline();
  port.Ct().SetSilent(false);
  VerifyWithCt(1, 5);
  EXPECT_TRUE(BoxShown(Text(826))) << "it went online again";
  ExpectOnline();
}

TEST_F(VerifyTest, TheOlderFormReadsTheOldestLayout) {
  Start();
  std::string file = "\"QV-R7\"\r\n\"A\",\"B\",\"C\",\"D\"\r\n";
  for (int n = 4; n <= 9; ++n) {
    file += std::to_string(n);
    for (int axis = 0; axis < kAxes; ++axis) file += ",31,10,0,0";
    file += ",0,0,0,\"\"\r\n";
  }
  virt.files.Put(kPath, file);
  forms.file_answers = {std::string(kPath)};
  AnswerRange("frmSelectPosiNo2", 1, 999);
  PosiDataFileShogo();
  EXPECT_EQ(seen.substr(0, 5), "4/1 3") << seen;
  EXPECT_NE(seen.find("5/1 "), std::string::npos);
  EXPECT_EQ(seen.find("6/"), std::string::npos) << "the table ends at 5";
  ExpectCommandsOn();
}

}  // namespace
}  // namespace tr7
