#include "posi/posi_side.h"
#include "posi/posi_syogo.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/other.qvd";

class SyogoTest : public StateTest {
 protected:
  void SetUp() override {
    PosiTableInit();
    PosiTable.StageHolds.set();
    SetLoadedPosiRange({5, 6});
    SetOperationRange({5, 6});
  }
  /// Flagged columns of position 5 after a comparison, such as "1 28".
  static std::string Flagged() {
    const int result = PosiDataSyogoProc();
    EXPECT_EQ(result, PosiTable.SyogoCount > 0 ? 1 : 0);
    std::string cols;
    for (std::size_t col = 1; col < kPosiColumns; ++col) {
      if (PosiTable.SyogoCell[col][5]) cols += (cols.empty() ? "" : " ") + std::to_string(col);
    }
    return cols;
  }
  static Variant& Stage(int col) { return PosiTable.PosiStage[static_cast<std::size_t>(col)][5]; }
  static Variant& Held(int col) { return PosiTable.PosiRec[static_cast<std::size_t>(col)][5]; }
};

TEST_F(SyogoTest, EveryColumnOfPositionModeButTheComment) {
  for (int col = 1; col <= kComment; ++col) {
    SetUp();
    Stage(col) = ValueOf(Held(col)) + 0.001;
    EXPECT_EQ(Flagged(), col == kComment ? "" : std::to_string(col) + " 28");
    const int axis = AxisOfColumn(col);
    if (axis < 0) continue;
    AppState.AxisMuko[axis] = True;
    EXPECT_EQ(Flagged(), "") << "an axis not in use, column " << col;
    AppState.AxisMuko[axis] = False;
  }
}

TEST_F(SyogoTest, LinesThatDoNotMoveInProgramMode) {
  const std::tuple<bool, double, double, double, const char*> rows[] = {
      {true, 0, 0, 200, ""},        {true, 1, 1, 100, ""},        {true, 1, 1, 200, "9 10 28"},
      {true, 0, 1, 100, "9 10 28"}, {true, 1, 0, 100, "9 10 28"}, {true, 2, 3, 100, "9 10 28"},
      {false, 0, 0, 200, "10 28"}};
  for (const auto& [program_mode, way, staged_way, staged_pulses, flagged] : rows) {
    SetUp();
    if (program_mode) Stage(kVel) = Stage(kSm) = 5.0;  // no matter there
    AppState.CtMode = program_mode;
    Held(9) = way;
    PosiTable.PosiPulse[1][5] = 100;
    Stage(9) = staged_way;
    Stage(10) = staged_pulses;
    EXPECT_EQ(Flagged(), flagged) << way << " " << staged_way;
    PosiSide held, staged;
    TakePosiTable(held);
    TakePosiStage(staged, PosiTable.StageHolds);
    EXPECT_EQ(PosiCellDiffers(held, staged, 10, 5), *flagged != 0) << "side by side";
  }
}

class VerifyTest : public FlowTest {
 protected:
  /// Positions 1 to 5 are on show, 2 to 4 in a file.
  void SetUp() override {
    StartOnline();
    ReadRange(1, 5);
    forms.file_answers = {std::string(kPath)};
    AnswerRange("frmSelectPosiNo3", 2, 4);
    forms.answers = {MsgAnswer::Ok};
    frmPosi.cmdPosiSaveAs.Press();
    frmPosi.PosiChanged = False;
    Forget();
    forms.on_modal["frmSyogoKekka"] = [this](View& view) {
      const Grid& result = frmSyogoKekka.flgdKekka;
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
  void Verify(const char* range_dialogue, CommandButton& command, int first, int last) {
    forms.file_answers = {std::string(kPath)};
    AnswerRange(range_dialogue, first, last);
    forms.boxes.clear();
    seen.clear();
    command.Press();
    EXPECT_EQ(PosiTable.SyogoCount, 0);
    EXPECT_EQ(OperationRange(), (PosiRange{1, 5}));
  }
  void VerifyWithFile(int first, int last) {
    Verify("frmSelectPosiNo4", frmPosi.cmdPosiFileVerify, first, last);
  }
  void VerifyWithCt(int first, int last) {
    Verify("frmSelectPosiNo3", frmPosi.cmdPosiCtVerify, first, last);
  }
  std::string seen;  ///< the result view's marked cells with both values
};

TEST_F(VerifyTest, WithAFile) {
  VerifyWithFile(2, 4);
  EXPECT_EQ(forms.LastBox(),
            "Data : indicated and saved into the file(other.qvd)\n\nResult of Verify - OK");
  Put(1, kVel, "1");  // outside what the file holds
  Put(3, kVel, "47");
  Put(3, kAcc, "500");
  Put(3, kPf, " 0 ");  // the same number
  VerifyWithFile(2, 4);
  EXPECT_EQ(seen, "3/1 47 (other.qvd: 30) 3/2 500 (other.qvd: 200) ");
  std::string gap = *virt.files.Content(kPath);
  gap.erase(gap.find("\r\n3,"), gap.find("\r\n4,") - gap.find("\r\n3,"));
  virt.files.Put(kPath, gap);
  VerifyWithFile(3, 3);
  EXPECT_EQ(seen, "") << "the file holds no position 3";
  EXPECT_EQ(Boxes(), Texts{Text(6459, "3")}) << "nothing compared is no good result";
  VerifyWithFile(4, 4);
  EXPECT_TRUE(forms.LastBox().starts_with("Data")) << "the range was narrowed";
  EXPECT_EQ(port.sent, "");
}

TEST_F(VerifyTest, WithTheController) {
  VerifyWithCt(2, 4);
  EXPECT_EQ(port.sent, "0RP002\r\n0RP003\r\n0RP004\r\n");
  EXPECT_EQ(forms.LastBox(), "Data : indicated and inside of controller\n\nResult of Verify - OK");
  Put(3, kVel, "47");
  VerifyWithCt(2, 4);
  EXPECT_EQ(seen, "3/1 47 (Inside of C/T: 30) ");
  EXPECT_EQ(TextOf(PosiTable.PosiRec[kVel][3]), "47") << "the table is as the user has it";
  VerifyWithCt(4, 5);
  EXPECT_EQ(seen, "");
}

TEST_F(SyogoTest, Overlap) {
  const PosiRange none;
  const std::tuple<PosiRange, PosiRange, PosiRange> rows[] = {
      {{1, 10}, {3, 5}, {3, 5}}, {{3, 5}, {1, 10}, {3, 5}}, {{1, 5}, {5, 9}, {5, 5}},
      {{1, 5}, {6, 9}, none},    {{6, 9}, {1, 5}, none},    {{1, 9}, {7, 3}, none}};
  for (const auto& [table, file, both] : rows) {
    SetLoadedPosiRange(table);
    AppState.FileFirstNo = static_cast<std::int16_t>(file.first);
    AppState.FileLastNo = static_cast<std::int16_t>(file.last);
    EXPECT_EQ(SyogoOverlap(), both == none ? 1 : 0) << table.first << file.first;
    const PosiRange found{AppState.SyogoFromNo, AppState.SyogoToNo};
    EXPECT_TRUE(both == none || found == both) << found.first << found.last;
  }
}

}  // namespace
}  // namespace tr7
