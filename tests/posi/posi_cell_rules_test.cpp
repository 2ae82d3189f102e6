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
  const struct {
    int col;
    std::vector<const char*> taken, refused;
  } columns[] = {{kVel, {"1", "75.9"}, {"0", "0.9", "76", "", "fast", "30 mm"}},
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
  for (const auto& column : columns) {
    for (const char* typed : column.taken) Expect({{column.col, typed, typed}});
    for (const char* typed : column.refused) Expect({{column.col, typed, nullptr}});
  }
  Expect({{kVel, " 75 ", "75"},
          {kAcc, "15", "10"},
          {kAcc, "1999.9", "1990"},
          {kComment, "  pick, place  ", "pick, place"}});
}

TEST_F(CellRules, PositionsInPulses) {
  ShowTable(1, 3);
  Expect({{kPosi, "0", "0"},
          {kPosi, "13334", "13334"},
          {kPosi, "13335", nullptr},
          {kPosi, "-1", nullptr},
          {kPosi, "10.5", nullptr},
          {kPosi, "", nullptr},
          {kPosi, "N", nullptr}});
}

TEST_F(CellRules, PositionsInMillimetres) {
  ShowTable(1, 3, false, true);
  AppState.MmRoundUp = True;
  Expect({{kPosi, "12.34567", "  12.345"},  // surplus decimals are cut, then it is on a pulse
          {kPosi, "0.003", "   0.000"},
          {kPosi, "0.004", "   0.008"},
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
  Expect({{kPosi, "n", "       N"},
          {kPosi, "N12", "       N"},
          {kPosi, "+", "      +1"},
          {kPosi, "-13334", "  -13334"},
          {kPosi, "-13335", nullptr},
          {kPosi, "100", "     100"},
          {kPosi, "x", nullptr},
          {kVel, "30", nullptr},
          {kItpl, "1", nullptr}});
  ShowTable(1, 3, true, true);
  Expect({{kPosi, "+", "  +0.998"},  // 1 mm is no whole pulse
          {kPosi, "-99.9", " -99.900"},
          {kPosi, "+100.006", nullptr}});
}

TEST_F(CellRules, TheSpeedLimitOfOneDeviceKindEscapesTheGearing) {
  DevSetting[0].Size = " 42";
  DevSetting[0].Speed = "D";
  ShowTable(1, 3);
  Expect({{kVel, "400", "400"}, {kVel, "401", nullptr}, {kAxis2 + kVel, "76", nullptr}});
}

TEST_F(CellRules, AnEditIsTakenOrRefusedAsAWhole) {
  ShowTable(5, 7);
  EXPECT_EQ(Type(6, kVel, "70"), 0);
  EXPECT_TRUE(frmPosi.PosiChanged);
  frmPosi.PosiChanged = False;
  EXPECT_EQ(Type(6, kVel, "1000"), 1);
  EXPECT_EQ(Type(6, kVel, "70"), 0) << "left as it was";
  EXPECT_EQ(forms.beeps, 1);
  frmPosi.flgdData.Enabled = false;
  EXPECT_EQ(Type(6, kVel, "60"), 1) << "a grid that is off takes nothing";
  EXPECT_EQ(Cell(6, kVel), "70");
  EXPECT_FALSE(frmPosi.PosiChanged);
  frmPosi.flgdData.Enabled = true;
  Type(5, kPosi, "1234");
  EXPECT_EQ(PosiTable.PosiPulse[0][1], 1234) << "the live mirror stands at the row";
  EXPECT_EQ(PosiTable.PosiPulse[0][5], 0) << "not at the number";
}

TEST_F(CellRules, WhatIsRoundedOrCutIsTold) {
  const struct {
    bool program_mode;
    int col;
    const char *typed, *note;
  } rows[] = {{false, kAcc, "44", "\"44\" became \"40\".  "},
              {false, kAcc, " 40 ", ""},
              {false, kPosi, "12.3456", "\"12.3456\" became \"12.345\".  "},
              {true, kPosi, "+1", "\"+1\" became \"+0.998\".  "},
              {true, kPosi, "n", ""}};
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

}  // namespace
}  // namespace tr7
