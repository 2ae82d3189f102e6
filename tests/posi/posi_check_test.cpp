// The one check of the grid and the one commit of its texts to the table.

#include "posi/posi_check.h"

#include "device/dev_setting.h"
#include "forms/frm_main.h"
#include "forms/frm_syogo_kekka.h"
#include "posi/device_change.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_lines.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "state/text.h"
#include "tests/support/posi_table_test.h"

namespace tr7 {
namespace {

constexpr int kAxis4 = 18;

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
  const struct {
    int col;
    const char* text;
  } rows[] = {{kVel, "76"},     {kVel, ""},   {kAcc, "4"}, {kWay, "4"},
              {kPosi, "13335"}, {kPosi, " "}, {kPf, "19"}, {kPs, "100"},
              {kItpl, "2"},     {kOut, "16"}, {kSm, "21"}, {kAxis4 + kPs, "100"}};
  for (const auto& row : rows) {
    ShowTable(1, 3);
    Put(1, kAcc, "2000");
    Put(1, kPosi, "13334");
    Put(2, row.col, row.text);
    EXPECT_EQ(PosiDataCheck3(), 1);
    EXPECT_TRUE(PosiTable.PosiLineBad[2]);
    EXPECT_EQ(lines, "2: " + std::to_string(row.col) + ";") << row.text;
  }
}

TEST_F(PosiCheck, NothingIsCommittedWhenOneCellIsBad) {
  ShowTable(1, 3);
  Put(1, kVel, "71");
  Put(3, kPf, "10");
  Put(3, kPs, "");
  EXPECT_EQ(PosiDataCheck3(), 1);
  EXPECT_EQ(Stored(kVel, 1), 30);
  EXPECT_EQ(lines, "3: 5 6;");
  EXPECT_EQ(PosiTable.PosiBadLineList, "3,");
  EXPECT_EQ(PosiTable.SyogoCount, 0) << "the flags are gone with the result view";

  Put(3, kPf, "20");
  Put(3, kPs, "5");
  EXPECT_EQ(PosiDataCheck3(), 0);
  EXPECT_EQ(Stored(kVel, 1), 71);
  EXPECT_EQ(Stored(kPf, 3), 20);
}

TEST_F(PosiCheck, TheCommitStoresEveryColumnInItsOwnUnit) {
  ShowTable(5, 7);
  Type(5, kPosi, "1234");
  Type(5, kAcc, "250");
  Type(5, kWay, "2");
  Type(5, kOut, "9");
  Type(5, kComment, "pick");
  ASSERT_EQ(PosiDataCheck3(), 0);
  EXPECT_EQ(PosiTable.PosiPulse[0][5], 1234) << "the slot of the number, not of the row";
  EXPECT_DOUBLE_EQ(PosiTable.PosiMm[0][5], 1234 * (6.0 / 800));
  const std::pair<int, int> stored[] = {{kPosi, 1234}, {kAcc, 25}, {kWay, 2}, {kOut, 9}};
  for (const auto& [col, value] : stored) EXPECT_EQ(Stored(col, 5), value) << col;
  EXPECT_EQ(TextOf(PosiTable.PosiRec[kComment][5]), "pick");
  ShowTable(1, 2, false, true);
  Type(1, kPosi, "12.345");
  ASSERT_EQ(PosiDataCheck3(), 0);
  EXPECT_EQ(PosiTable.PosiPulse[0][1], 1646) << "the millimetres of their view are the master";
  EXPECT_EQ(Stored(kPosi, 1), 1646);
}

TEST_F(PosiCheck, ProgramModeTakesTheWayFromTheSignAndFillsTheRest) {
  ShowTable(1, 3, true);
  Put(3, kVel, "");
  const struct {
    const char* typed;
    int way;
  } rows[] = {{"+250", 2}, {"-250", 3}, {"250", 1}};
  for (int n = 1; n <= 3; ++n) Type(n, kPosi, rows[n - 1].typed);
  ASSERT_EQ(PosiDataCheck3(), 0);
  for (int n = 1; n <= 3; ++n) {
    EXPECT_EQ(Stored(kWay, n), rows[n - 1].way);
    EXPECT_EQ(Stored(kPosi, n), 250);
    EXPECT_EQ(Stored(kVel, n), 30);
    EXPECT_EQ(Stored(kAcc, n), 1);
  }
  EXPECT_EQ(Stored(kAxis4 + kWay, 3), 0) << "N";
  Put(2, kPosi, "   13335");
  EXPECT_EQ(PosiDataCheck3(), 1);
  EXPECT_EQ(lines, "2: 4;");
}

TEST_F(PosiCheck, ProgramModeIsNotLockedByWhatItHides) {
  for (DevSettingRecord& device : DevSetting) device.Ppr = 20000;  // 3 mm/s: below VEL's default
  ShowTable(1, 3, true);
  for (const int col : {kVel, kAcc, kOut, kSm}) {
    PosiTable.PosiRec[static_cast<std::size_t>(col)].fill(col > kItpl ? 99.0 : 0.0);
  }
  FG_ShowTable();
  EXPECT_TRUE(AppendLine());
  EXPECT_EQ(PosiDataCheckAll(), 0) << lines;
  EXPECT_EQ(Stored(kVel, 1), 30);
  EXPECT_EQ(Stored(kOut, 2) + Stored(kSm, 3), 0);
  // A position-mode table with edits, whose mode changes under it.
  ShowTable(1, 3);
  Put(2, kVel, "0");
  frmPosi.PosiChanged = True;
  AppState.CtMode = True;
  RebuildPosiViewKeepingEdits();
  EXPECT_EQ(PosiDataCheckAll(), 0) << lines;
}

TEST_F(PosiCheck, AnAxisNotInUseIsFilledAndNotJudged) {
  AppState.AxisMuko[3] = True;
  ShowTable(1, 2);
  Put(1, kAxis4 + kVel, "9999");
  Put(1, kAxis4 + kPosi, "");
  ASSERT_EQ(PosiDataCheck3(), 0);
  EXPECT_EQ(Stored(kAxis4 + kVel, 1), 30);
  EXPECT_EQ(Stored(kAxis4 + kAcc, 1), 1);
  EXPECT_EQ(PosiTable.PosiPulse[3][1], 0);
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

TEST_F(PosiCheck, NoTableIsGoodAndWithoutADeviceNothingCanBeConverted) {
  ShowTable(1, 2);
  DevSetting[1].Ppr = 0;
  EXPECT_EQ(PosiDataCheck3(), 1);
  EXPECT_TRUE(BoxShown("AXIS2"));
  frmPosi.flgdData.SetRows(2);
  EXPECT_EQ(PosiDataCheck3(), 0);
  EXPECT_EQ(LoadedPosiRange(), PosiRange{});
}

TEST_F(PosiCheck, TheCheckCommandGoesToTheFirstBadLine) {
  ShowTable(1, 5);
  frmPosi.cmdPosiCheck.Press();
  EXPECT_TRUE(BoxShown(Text(6358)));
  Put(4, kOut, "99");
  frmPosi.cmdPosiCheck.Press();
  EXPECT_EQ(lines, "4: 26;");
  EXPECT_EQ(frmPosi.flgdData.Row, 5);
}

TEST_F(PosiCheck, DecimalsOfASpeedAreToldAtTheEditAndAtTheCheck) {
  ShowTable(1, 5);
  std::string typed = "30.5";
  EXPECT_TRUE(frmPosi.flgdData.AcceptEdit(3, kVel, typed).accepted);
  Put(2, kVel, typed);
  frmPosi.flgdData.SelectCell(3, kAcc);
  EXPECT_TRUE(frmMain.sbStatusBar.Panels[kPanelError].starts_with(Text(6365, "30.5", "30")));
  frmPosi.cmdPosiCheck.Press();
  EXPECT_EQ(forms.LastBox(), Text(6358) + "\n\n" + Text(6366) + "\n2");
}

}  // namespace
}  // namespace tr7
