// The one check of the grid, the one commit of its texts to the table, and the rule of each cell.

#include <span>

#include "posi/cell_rules.h"
#include "tests/support/posi_table_test.h"

namespace tr7 {
namespace {

constexpr int kAxis2 = 6, kAxis4 = 18;  ///< columns in front of them

class PosiCheck : public PosiTableTest {
 protected:
  PosiCheck() {
    forms.on_modal["frmSyogoKekka"] = [this](View&) {
      const Grid& grid = frmSyogoKekka.flgdKekka;
      lines.clear();
      for (int row = grid.FixedRows; row < grid.Rows(); ++row) {
        lines += grid.Text(row, 0) + ":";
        for (int col = 1; col < grid.Cols(); ++col) {
          if (grid.IsMarked(row, col)) lines += " " + std::to_string(col);
        }
        lines += ";";
      }
      frmSyogoKekka.cmdClose.Press();
    };
  }
  std::string lines;  ///< of the result view: number, flagged columns
};

TEST_F(PosiCheck, ABadCellOfAnyColumnIsFlagged) {
  const std::pair<int, const char*> rows[] = {
      {kVel, "76"},     {kVel, ""},   {kAcc, "4"}, {kWay, "4"},
      {kPosi, "13335"}, {kPosi, " "}, {kPf, "19"}, {kPs, "100"},
      {kItpl, "2"},     {kOut, "16"}, {kSm, "21"}, {kAxis4 + kPs, "100"}};
  for (const auto& [col, text] : rows) {
    ShowTable(1, 3);
    Put(1, kPosi, "13334");
    Put(2, col, text);
    EXPECT_EQ(PosiDataCheck3(), 1);
    EXPECT_EQ(lines, "2: " + std::to_string(col) + ";") << text;
    EXPECT_EQ(Stored(kPosi, 1), 0) << "nothing is committed when one cell is bad";
  }
  EXPECT_TRUE(PosiTable.PosiLineBad[2]);
  Put(2, kAxis4 + kPosi, "");
  AppState.AxisMuko[3] = True;
  EXPECT_EQ(PosiDataCheck3(), 0) << "an axis not in use is filled and not judged";
  EXPECT_EQ(Stored(kAxis4 + kVel, 2) + Stored(kAxis4 + kPs, 2), 30);
}

TEST_F(PosiCheck, TheCommitStoresEveryColumnInItsOwnUnit) {
  ShowTable(5, 7);
  const std::tuple<int, const char*, int> cells[] = {
      {kPosi, "1234", 1234}, {kAcc, "250", 25}, {kWay, "2", 2}, {kOut, "9", 9}};
  for (const auto& [col, typed, stored] : cells) Type(5, col, typed);
  Type(5, kComment, "pick");
  ASSERT_EQ(PosiDataCheck3(), 0);
  for (const auto& [col, typed, stored] : cells) EXPECT_EQ(Stored(col, 5), stored) << col;
  EXPECT_DOUBLE_EQ(PosiTable.PosiMm[0][5], 1234 * (6.0 / 800));
  EXPECT_EQ(TextOf(PosiTable.PosiRec[kComment][5]), "pick");
  ShowTable(1, 2, false, true);
  Type(1, kPosi, "12.345");
  ASSERT_EQ(PosiDataCheck3(), 0);
  EXPECT_EQ(PosiTable.PosiPulse[0][1], 1646) << "the millimetres of their view are the master";
  EXPECT_EQ(Stored(kPosi, 1), 1646);
}

TEST_F(PosiCheck, ProgramModeIsNotLockedByWhatItHides) {
  for (DevSettingRecord& device : DevSetting) device.Ppr = 20000;  // 3 mm/s: below VEL's default
  ShowTable(1, 3, true);
  for (const int col : {kVel, kAcc, kOut, kSm}) {
    PosiTable.PosiRec[static_cast<std::size_t>(col)].fill(col > kItpl ? 99.0 : 0.0);
  }
  FG_ShowTable();
  EXPECT_TRUE(AppendLine());
  EXPECT_TRUE(PosiDataCheckAll()) << lines;
  EXPECT_EQ(Stored(kVel, 1), 30);
  EXPECT_EQ(Stored(kOut, 2) + Stored(kSm, 3), 0);
}

TEST_F(PosiCheck, TheCheckCommandGoesToTheFirstBadLineAndTellsOfSpeeds) {
  ShowTable(1, 5);
  std::string typed = "30.5";
  EXPECT_TRUE(frmPosi.flgdData.AcceptEdit(3, kVel, typed).accepted);
  Put(2, kVel, typed);
  frmPosi.flgdData.SelectCell(3, kAcc);
  EXPECT_TRUE(frmMain.sbStatusBar.Panels[kPanelError].starts_with(Text(6365, "30.5", "30")));
  frmPosi.cmdPosiCheck.Press();
  EXPECT_EQ(forms.LastBox(), Text(6358) + "\n\n" + Text(6366) + "\n2");
  Put(4, kOut, "99");
  frmPosi.cmdPosiCheck.Press();
  EXPECT_EQ(lines, "4: 26;");
  EXPECT_EQ(frmPosi.flgdData.Row, 5);
}

// What each cell takes, and what it shows then.

struct Row {
  int col;
  const char* typed;
  const char* shown;  ///< null: refused
};

class CellRules : public PosiTableTest {
 protected:
  void Expect(std::span<const Row> rows) {
    for (const Row& row : rows) {
      const auto cell = ApplyCellRule(row.col, row.typed, AppState.CtMode);
      EXPECT_EQ(cell ? cell->text : "(refused)", row.shown ? row.shown : "(refused)")
          << row.col << " \"" << row.typed << "\"";
    }
  }
};

TEST_F(CellRules, ColumnsWhoseRuleKnowsNoUnit) {
  using Texts = std::vector<const char*>;
  const std::tuple<int, Texts, Texts> columns[] = {
      {kVel, {"1", "75.9"}, {"0", "0.9", "76", "", "fast", "30 mm"}},
      {kAcc, {"10", "2000"}, {"9", "2001"}},
      {kWay, {"0", "3"}, {"4", "-1", "1.5"}},
      {kPf, {"0", "20", "70"}, {"19", "71"}},
      {kPs, {"0", "99"}, {"100"}},
      {kItpl, {"1"}, {"2"}},
      {kOut, {"15"}, {"16"}},
      {kSm, {"20"}, {"21"}},
      {kComment, {"", "受取り位置"}, {"say \"go\""}},
      {0, {}, {"1"}},
      {kPosiColumns, {}, {"1"}}};
  ShowTable(1, 3);
  for (const auto& [col, taken, refused] : columns) {
    for (const char* typed : taken) Expect({{{col, typed, typed}}});
    for (const char* typed : refused) Expect({{{col, typed, nullptr}}});
  }
  const Row changed[] = {{kVel, " 75 ", "75"},
                         {kAcc, "15", "10"},
                         {kAcc, "1999.9", "1990"},
                         {kComment, "  pick, place  ", "pick, place"}};
  Expect(changed);
}

TEST_F(CellRules, PositionsInBothUnits) {
  ShowTable(1, 3);
  const Row pulses[] = {{kPosi, "0", "0"},         {kPosi, "13334", "13334"},
                        {kPosi, "13335", nullptr}, {kPosi, "-1", nullptr},
                        {kPosi, "10.5", nullptr},  {kPosi, "", nullptr},
                        {kPosi, "N", nullptr}};
  Expect(pulses);
  // Surplus decimals are cut, then it is on a pulse.
  const Row mm[] = {{kPosi, "12.34567", "  12.345"}, {kPosi, "0.003", "   0.000"},
                    {kPosi, "0.004", "   0.008"},    {kPosi, "100.0059", " 100.005"},
                    {kPosi, "100.006", nullptr},     {kPosi, "-0.1", nullptr},
                    {kPosi, "1e3", nullptr}};
  ShowTable(1, 3, false, true);
  AppState.MmRoundUp = True;
  Expect(mm);
  // 6 mm in 1500 pulses: a pulse is 0.004 mm, the tie 0.002.
  for (DevSettingRecord& device : DevSetting) device.Ppr = 1500;
  ShowTable(1, 3, false, true);
  for (const bool up : {false, true}) {
    AppState.MmRoundUp = up;
    Expect({{{kPosi, "0.002", up ? "   0.004" : "   0.000"}}});
  }
}

TEST_F(CellRules, ProgramModeFoldsTheWayIntoThePosition) {
  ShowTable(1, 3, true);
  const Row pulses[] = {{kPosi, "n", "       N"},   {kPosi, "N12", "       N"},
                        {kPosi, "+", "      +1"},   {kPosi, "-13334", "  -13334"},
                        {kPosi, "-13335", nullptr}, {kPosi, "100", "     100"},
                        {kPosi, "x", nullptr},      {kVel, "30", nullptr}};
  Expect(pulses);
  ShowTable(1, 3, true, true);
  const Row mm[] = {{kPosi, "+", "  +0.998"},  // 1 mm is no whole pulse
                    {kPosi, "-99.9", " -99.900"},
                    {kPosi, "+100.006", nullptr}};
  Expect(mm);
}

TEST_F(CellRules, AnEditIsTakenOrRefusedAsAWhole) {
  ShowTable(5, 7);
  EXPECT_EQ(Type(6, kVel, "70"), 0);
  EXPECT_TRUE(frmPosi.PosiChanged);
  frmPosi.PosiChanged = False;
  EXPECT_EQ(Type(6, kVel, "1000"), 1);
  EXPECT_EQ(Type(6, kVel, "70"), 0) << "left as it was";
  EXPECT_EQ(forms.beeps, 1);
  EXPECT_FALSE(frmPosi.PosiChanged);
  Type(5, kPosi, "1234");
  EXPECT_EQ(PosiTable.PosiPulse[0][1], 1234) << "the live mirror stands at the row";
  EXPECT_EQ(PosiTable.PosiPulse[0][5], 0) << "not at the number";
}

TEST_F(CellRules, WhatIsRoundedOrCutIsTold) {
  const std::tuple<bool, int, const char*, const char*> rows[] = {
      {false, kAcc, "44", "\"44\" became \"40\".  "},
      {false, kAcc, " 40 ", ""},
      {false, kPosi, "12.3456", "\"12.3456\" became \"12.345\".  "},
      {true, kPosi, "+1", "\"+1\" became \"+0.998\".  "},
      {true, kPosi, "n", ""}};
  for (const auto& [program_mode, col, typed, note] : rows) {
    ShowTable(1, 3, program_mode, true);
    Type(1, col, typed);
    frmPosi.flgdData.SelectCell(kPosiHeaderRows, kComment);  // as Enter does
    EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], note + Text(5242)) << typed;
    frmPosi.flgdData.SelectCell(kPosiHeaderRows, kAxis2 + kPosi);
    EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError].substr(0, 5), "Input");
  }
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelScale1].substr(0, 3), "<2>") << "of the cell's axis";
}

TEST_F(PosiCheck, ANarrowedRangeLooksAtItsOwnLinesOnly) {
  ShowTable(1, 5);
  Put(1, kVel, "9999");
  SetOperationRange({2, 4});
  EXPECT_EQ(PosiDataCheck3(), 0);
  SetOperationRange({500, 600});
  EXPECT_EQ(PosiDataCheck3(), 1) << "a range that is not loaded stands for the whole table";
  EXPECT_EQ(lines, "1: 1;");
}

}  // namespace
}  // namespace tr7
