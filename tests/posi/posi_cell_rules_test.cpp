// What each cell of the position grid takes, and what it shows then.

#include "device/dev_setting.h"
#include "forms/frm_main.h"
#include "posi/cell_rules.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/text.h"
#include "tests/support/posi_table_test.h"

namespace tr7 {
namespace {

constexpr int kAxis2 = 6;  ///< columns in front of AXIS2

struct Row {
  int col;
  const char* typed;
  const char* shown;  ///< null: refused
};

class CellRules : public PosiTableTest {
 protected:
  void Expect(const std::vector<Row>& rows) {
    const std::string name = std::string(AppState.CtMode ? "program" : "position") +
                             (AppState.DispMmUnit ? ", mm" : ", pulses");
    for (const Row& row : rows) {
      const auto cell = ApplyCellRule(row.col, row.typed, AppState.CtMode);
      const std::string what =
          name + ": column " + std::to_string(row.col) + " \"" + row.typed + "\"";
      EXPECT_EQ(cell ? cell->text : "(refused)", row.shown ? row.shown : "(refused)") << what;
    }
  }
};

TEST_F(CellRules, ColumnsWhoseRuleKnowsNoUnit) {
  const std::vector<Row> rows = {{kVel, "1", "1"},
                                 {kVel, " 75 ", "75"},
                                 {kVel, "75.9", "75.9"},
                                 {kVel, "0", nullptr},
                                 {kVel, "0.9", nullptr},
                                 {kVel, "76", nullptr},
                                 {kVel, "", nullptr},
                                 {kVel, "fast", nullptr},
                                 {kVel, "30 mm", nullptr},
                                 {kAcc, "10", "10"},
                                 {kAcc, "15", "10"},
                                 {kAcc, "1999.9", "1990"},
                                 {kAcc, "2000", "2000"},
                                 {kAcc, "9", nullptr},
                                 {kAcc, "2001", nullptr},
                                 {kWay, "0", "0"},
                                 {kWay, "3", "3"},
                                 {kWay, "4", nullptr},
                                 {kWay, "-1", nullptr},
                                 {kWay, "1.5", nullptr},
                                 {kPf, "0", "0"},
                                 {kPf, "20", "20"},
                                 {kPf, "70", "70"},
                                 {kPf, "10", nullptr},
                                 {kPf, "19", nullptr},
                                 {kPf, "71", nullptr},
                                 {kPs, "0", "0"},
                                 {kPs, "99", "99"},
                                 {kPs, "100", nullptr},
                                 {kItpl, "1", "1"},
                                 {kItpl, "2", nullptr},
                                 {kOut, "15", "15"},
                                 {kOut, "16", nullptr},
                                 {kSm, "20", "20"},
                                 {kSm, "21", nullptr},
                                 {kComment, "  pick, place  ", "pick, place"},
                                 {kComment, "", ""},
                                 {kComment, "受取り位置", "受取り位置"},
                                 {kComment, "say \"go\"", nullptr},
                                 {0, "1", nullptr},
                                 {kPosiColumns, "1", nullptr}};
  for (const bool mm : {false, true}) {
    ShowTable(1, 3, false, mm);
    Expect(rows);
  }
}

TEST_F(CellRules, PositionsInPulses) {
  ShowTable(1, 3);
  ASSERT_EQ(AppState.MaxPulse[0], 13334);
  Expect({{kPosi, "0", "0"},
          {kPosi, "13334", "13334"},
          {kPosi, "13335", nullptr},
          {kPosi, "-1", nullptr},
          {kPosi, "10.5", nullptr},
          {kPosi, "", nullptr},
          {kPosi, "N", nullptr},
          {kAxis2 + kPosi, " 42 ", "42"}});
}

TEST_F(CellRules, PositionsInMillimetres) {
  ShowTable(1, 3, false, true);
  ASSERT_DOUBLE_EQ(AppState.MaxMm[0], 100.005);
  AppState.MmRoundUp = True;
  Expect({{kPosi, "0", "   0.000"},
          {kPosi, "12.34567", "  12.345"},  // surplus decimals are cut, then it is on a pulse
          {kPosi, "0.003", "   0.000"},
          {kPosi, "0.004", "   0.008"},
          {kPosi, "100.005", " 100.005"},
          {kPosi, "100.0059", " 100.005"},
          {kPosi, "100.006", nullptr},
          {kPosi, "-0.1", nullptr},
          {kPosi, "1e3", nullptr}});
}

TEST_F(CellRules, ATieOfTheSnapGoesAsTheSettingSays) {
  // 6 mm in 1500 pulses: a pulse is 0.004 mm, the tie 0.002.
  for (DevSettingRecord& device : DevSetting) device.Ppr = 1500;
  ShowTable(1, 3, false, true);
  for (const bool up : {false, true}) {
    AppState.MmRoundUp = up;
    Expect({{kPosi, "0.002", up ? "   0.004" : "   0.000"}});
  }
}

TEST_F(CellRules, ProgramModeFoldsTheWayIntoThePosition) {
  ShowTable(1, 3, true);
  Expect({{kPosi, "N", "       N"},
          {kPosi, "n", "       N"},
          {kPosi, "N12", "       N"},
          {kPosi, "+", "      +1"},
          {kPosi, "-", "      -1"},
          {kPosi, "+100", "    +100"},
          {kPosi, "-13334", "  -13334"},
          {kPosi, "-13335", nullptr},
          {kPosi, "100", "     100"},
          {kPosi, "x", nullptr},
          {kComment, "go", "go"},
          {kVel, "30", nullptr},
          {kItpl, "1", nullptr}});
  ShowTable(1, 3, true, true);
  Expect({{kPosi, "+", "  +0.998"},  // 1 mm is no whole pulse
          {kPosi, "-99.9", " -99.900"},
          {kPosi, "7.5", "   7.500"},
          {kPosi, "+100.006", nullptr}});
}

TEST_F(CellRules, TheSpeedLimitOfOneDeviceKindEscapesTheGearing) {
  DevSetting[0].Size = " 42";
  DevSetting[0].Speed = "D";
  ShowTable(1, 3);
  Expect({{kVel, "400", "400"}, {kVel, "401", nullptr}, {kAxis2 + kVel, "76", nullptr}});
  EXPECT_EQ(Cell(1, kAcc), "200");
  EXPECT_EQ(Cell(1, kAxis2 + kAcc), "100");
}

TEST_F(CellRules, AnEditIsTakenOrRefusedAsAWhole) {
  ShowTable(1, 3);
  EXPECT_EQ(Type(2, kVel, "70"), 0);
  EXPECT_EQ(Cell(2, kVel), "70");
  EXPECT_TRUE(frmPosi.PosiChanged);
  frmPosi.PosiChanged = False;
  EXPECT_EQ(Type(2, kVel, "1000"), 1);
  EXPECT_EQ(Cell(2, kVel), "70");
  EXPECT_EQ(Type(2, kVel, "70"), 0) << "left as it was";
  EXPECT_FALSE(frmPosi.PosiChanged);
  EXPECT_EQ(forms.beeps, 1);
  Select(1, kVel, 3, kVel);
  EXPECT_EQ(Type(1, kVel, "50"), 0);
  EXPECT_EQ(frmPosi.flgdData.RowSel, frmPosi.flgdData.Row);
}

TEST_F(CellRules, WhatIsRoundedOrCutIsTold) {
  const struct {
    bool program_mode;
    int col;
    const char *typed, *note;
  } rows[] = {{false, kAcc, "44", "\"44\" became \"40\".  "},
              {false, kAcc, " 40 ", ""},
              {false, kPosi, "12.3456", "\"12.3456\" became \"12.345\".  "},
              {false, kPosi, "7.5", ""},
              {true, kPosi, "+1", "\"+1\" became \"+0.998\".  "},
              {true, kPosi, "n", ""},
              {false, kComment, "go", ""}};
  for (const auto& row : rows) {
    ShowTable(1, 3, row.program_mode, true);
    Type(1, row.col, row.typed);
    frmPosi.flgdData.SelectCell(kPosiHeaderRows, kComment);  // as Enter does
    EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], row.note + Text(5242)) << row.typed;
    frmPosi.flgdData.SelectCell(kPosiHeaderRows, kAxis2 + kPosi);
    EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError].substr(0, 5), "Input");
  }
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelScale1].substr(0, 3), "<2>") << "of the cell's axis";
}

TEST_F(CellRules, AnEditorLeftAsItOpenedIsNoEdit) {
  ShowTable(1, 3, false, true);
  Put(2, kPosi, " 999.000");  // as an old file may have it
  frmPosi.PosiChanged = False;
  for (const int number : {1, 2}) {
    const std::string shown = Cell(number, kPosi);
    ASSERT_EQ(shown.front(), ' ');
    // The editor opens with the text alone, without the blanks that align it.
    EXPECT_EQ(Type(number, kPosi, shown.substr(shown.find_first_not_of(' '))), 0);
    EXPECT_EQ(Cell(number, kPosi), shown);
  }
  EXPECT_FALSE(frmPosi.PosiChanged);
  EXPECT_EQ(forms.beeps, 0);
}

TEST_F(CellRules, TheLiveMirrorStandsAtTheRowNotAtTheNumber) {
  ShowTable(5, 7);
  Type(5, kPosi, "1234");
  EXPECT_EQ(PosiTable.PosiPulse[0][1], 1234);
  EXPECT_EQ(PosiTable.PosiPulse[0][5], 0);
}

}  // namespace
}  // namespace tr7
