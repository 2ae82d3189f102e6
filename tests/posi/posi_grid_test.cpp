// How the position grid is laid out, filled and told about; new data, the unit, and leaving.

#include "core/options_view.h"
#include "forms/frm_go_to.h"
#include "forms/frm_options2.h"
#include "posi/posi_commands.h"
#include "tests/support/flow_test.h"
#include "tests/support/posi_table_test.h"

namespace tr7 {
namespace {

constexpr int kAxis2 = 6, kAxis3 = 12;

class PosiGrid : public PosiTableTest {
 protected:
  /// Number `n` holds way 2 and 1000 pulses on AXIS1, as if read from a file.
  static void Store(int n) {
    const auto slot = static_cast<std::size_t>(n);
    PosiTable.PosiRec[kVel][slot] = std::string(" 45");
    PosiTable.PosiRec[kAcc][slot] = 25.0;
    PosiTable.PosiRec[kWay][slot] = 2.0;
    PosiTable.PosiPulse[0][slot] = 1000;
    PosiTable.PosiMm[0][slot] = 7.5;
    PosiTable.PosiRec[kPosi][slot] = 1000.0;
    PosiTable.PosiRec[kSm][slot] = std::string(" 20");
    PosiTable.PosiRec[kComment][slot] = std::string(" as it is ");
  }
  std::string Line(int number, std::initializer_list<int> columns) const {
    std::string line;
    for (const int col : columns) line += Cell(number, col) + "|";
    return line;
  }
};

TEST_F(PosiGrid, EveryCellOfEveryRowIsFilled) {
  const std::tuple<bool, bool, int, std::string> rows[] = {
      {false, false, 2, "1000"},   {false, true, 2, "   7.500"}, {true, false, 0, "       N"},
      {true, true, 1, "   7.500"}, {true, true, 2, "  +7.500"},  {true, true, 3, "  -7.500"}};
  for (const auto& [program_mode, mm, way, posi] : rows) {
    AppState.AxisMuko[2] = True;
    ShowTable(7, 7, program_mode, mm);
    Store(7);
    PosiTable.PosiRec[kWay][7] = static_cast<double>(way);
    PosiTable.PosiRec[kAxis3 + kVel][7] = 77.0;
    FG_ShowTable();
    EXPECT_EQ(Line(7, {0, kPosi}), "7|" + posi + "|");
    EXPECT_EQ(Cell(7, kWay), std::to_string(way));
    EXPECT_EQ(Line(7, {kVel, kAcc, kAxis2 + kVel, kAxis2 + kAcc}), "45|250|30|100|");
    EXPECT_EQ(Line(7, {kAxis3 + kVel, kAxis3 + kAcc}), "30|100|") << "an axis not in use";
    EXPECT_EQ(Line(7, {kSm, kComment}), "20| as it is |");
    const Grid& grid = frmPosi.flgdData;
    EXPECT_EQ(grid.Col, program_mode ? kPosi : kVel);
    EXPECT_EQ(grid.Text(1, kAxis2 + kPosi), mm ? "Posi2(mm)" : "Posi2(pls)");
    for (int col = 1; col <= kComment; ++col) {
      const bool unused = AxisOfColumn(col) == 2;
      const bool position = AxisOfColumn(col) >= 0 && FieldOfColumn(col) == kPosi;
      const bool shown = !unused && (!program_mode || position || col == kComment);
      EXPECT_EQ(grid.ColWidth(col) != 0, shown) << col;
      EXPECT_EQ(grid.ColColour(col) == 0xe0e0e0, unused) << col;
    }
  }
  // What a file holds beyond all ranges is shown and harms nothing.
  PosiTable.PosiRec[kWay][7] = std::string(400, '9');
  PosiTable.PosiMm[0][7] = 1e300;
  FG_ShowTable();
  EXPECT_GT(Cell(7, kPosi).size(), 8u) << "a way that is none counts as absolute";
}

TEST_F(PosiGrid, ARangeOfDefaultsReplacesTheTable) {
  DevSetting[0].Speed = "D";
  DevSetting[0].Size = " 42";
  ShowTable(3, 4);
  Store(4);
  Type(3, kVel, "31");
  forms.on_modal["frmSelectPosiNo3"] = [this](View& view) {
    auto& range = static_cast<SelectPosiNoView&>(view);
    EXPECT_EQ(range.txtFromNo.Text + "-" + range.txtToNo.Text, "1-15");
    FillRange(range, 5, 4);
    EXPECT_EQ(forms.LastBox(), Text(1610));
    EXPECT_TRUE(range.Visible);
    FillRange(range, 1, 999);
  };
  forms.answers = {MsgAnswer::Cancel, MsgAnswer::No};
  frmMain.mnuFileNew.Click();
  EXPECT_EQ(forms.LastBox(), Text(5243));
  EXPECT_EQ(AppState.PosiLastNo, 4);
  frmMain.mnuFileNew.Click();
  EXPECT_EQ(AppState.PosiLastNo, 999);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[New Data]");
  EXPECT_EQ(Line(4, {kVel, kAcc, kAxis2 + kAcc, kWay, kPosi, kComment}), "30|200|100|0|0||");
  EXPECT_FALSE(frmPosi.PosiChanged || AppState.RangeIsForNew);
}

// Devices that change under the table.

TEST_F(PosiGrid, InMillimetresOnlyAnEditedCellChangesItsPulses) {
  for (const bool program_mode : {false, true}) {
    ShowTable(2, 4, program_mode, true);
    for (int n = 2; n <= 4; ++n) Store(n);
    FG_ShowTable();
    Type(3, kPosi, program_mode ? "+12.345" : "12.345");
    Select(2, kPosi, 2, kPosi);
    cmdInsertLine_Click();
    DevSetting[0].Lead = 12;
    RecalcLimits();
    MmFollowsPulses();
    EXPECT_EQ(Cell(3, kPosi), program_mode ? " +15.000" : "  15.000");
    EXPECT_EQ(Cell(4, kPosi), program_mode ? " +12.345" : "  12.345") << "as the user typed it";
    EXPECT_TRUE(PosiDataCheckAll());
    EXPECT_EQ(PosiTable.PosiPulse[0][3], 1000);
    EXPECT_EQ(PosiTable.PosiPulse[0][4], 823);
    EXPECT_EQ(PosiTable.PosiPulse[0][5], 1000);
    // A device that cannot convert shows no millimetres, and the next one finds the pulses.
    DevSetting[0].Lead = 0;
    MmFollowsPulses();
    EXPECT_EQ(Cell(3, kPosi), "");
    DevSetting[0].Lead = 6;
    RecalcLimits();
    EXPECT_TRUE(PositionsFollowDevices());
    EXPECT_EQ(Cell(3, kPosi), program_mode ? "  +7.500" : "   7.500");
    EXPECT_EQ(PosiTable.PosiPulse[0][4], 823);
  }
}

// The unit.

class PosiUnit : public PosiGrid {
 protected:
  void Take(bool mm) {
    forms.on_modal["frmOptions2"] = [mm](View&) {
      ClickTab(frmOptions2.tabOptions, 2);
      (mm ? frmOptions2.optUnitMm : frmOptions2.optUnitPulse).Press();
      frmOptions2.cmdOk.Press();
    };
    ShowOptions();
    const std::string setting = virt.settings.Get("Settings", "DispMmUnit", "-");
    EXPECT_EQ(setting, AppState.DispMmUnit ? "1" : "0");
  }
};

TEST_F(PosiUnit, TheTableIsShownInTheOtherUnitAndKeepsItsPulses) {
  for (const bool program_mode : {false, true}) {
    ShowTable(5, 7, program_mode);
    Type(6, kPosi, program_mode ? "+1000" : "1000");
    Select(6, kPosi, 6, kPosi);
    Take(true);
    EXPECT_EQ(Cell(6, kPosi), program_mode ? "  +7.500" : "   7.500");
    EXPECT_EQ(PosiTable.PosiPulse[0][6], 1000);
    EXPECT_TRUE(frmPosi.PosiChanged) << "it is in no file yet";
    EXPECT_EQ(frmPosi.flgdData.Row, RowOfPosition(6)) << "the user stays where he was";
    frmMain.mnuViewUnit.Press();
    EXPECT_EQ(Cell(6, kPosi), program_mode ? "   +1000" : "1000");
  }
  ShowTable(5, 7);
  Put(6, kVel, "999");
  forms.on_modal["frmSyogoKekka"] = [](View&) { frmSyogoKekka.cmdClose.Press(); };
  Take(true);
  EXPECT_EQ(forms.LastBox(), Text(2541) + "\n" + Text(2542));
  EXPECT_FALSE(AppState.DispMmUnit) << "a bad table keeps its unit";
}

// Commands and leaving.

TEST_F(PosiGrid, ANumberLeadsToItsLine) {
  ShowTable(5, 7);
  for (const char* number : {"6", "8", ""}) {
    forms.on_modal["frmGoTo"] = [number](View&) {
      frmGoTo.txtNumber.Type(number);
      frmGoTo.cmdOk.Press();
      EXPECT_EQ(frmGoTo.Visible, number == std::string("8")) << "it asks on";
      frmGoTo.cmdCancel.Press();
    };
    frmMain.mnuViewGoTo.Press();
    EXPECT_EQ(frmPosi.flgdData.Row, RowOfPosition(6));
  }
}

TEST_F(PosiGrid, EditCommandsFollowTheSelectionAndTheActiveView) {
  ShowTable(998, 998);
  const auto on = [] {
    const EditStates& edit = frmPosi.Edit;
    EXPECT_EQ(edit.Copy, frmPosi.cmdPosiCopy.Enabled && frmPosi.mnuPopupCopy.Enabled);
    EXPECT_EQ(edit.Insert, frmMain.mnuEditInsert.Enabled);
    return std::string(edit.Copy ? "c" : "") + (edit.Paste ? "p" : "") + (edit.Insert ? "i" : "") +
           (edit.Delete ? "d" : "");
  };
  const struct {
    int row, row_sel;
    const char *on, *copied_on;  ///< of copy, paste, insert, delete; once a line was copied
  } rows[] = {{0, 0, "", ""}, {2, 2, "cid", "cpid"}, {2, 0, "i", "pi"}};
  for (const auto& row : rows) {
    for (const bool copied : {false, true}) {
      frmPosi.CopiedIsLine = copied;
      frmPosi.flgdData.Select(row.row, 1, row.row_sel, 1);
      EXPECT_EQ(on(), copied ? row.copied_on : row.on) << row.row;
    }
  }
  frmPosi.flgdData.SelectCell(2, 1);
  frmMain.mnuEditInsert.Press();
  EXPECT_EQ(AppState.PosiLastNo, 999);
  EXPECT_EQ(on(), "cpd") << "there is no room for another line";
  SetActiveView(&frmParameta2);
  EditCommandsBySelection();
  EXPECT_FALSE(frmMain.mnuEdit.Enabled || frmMain.mnuFileSave.Enabled)
      << "a flow's end does not bring them to another view";
}

}  // namespace
}  // namespace tr7
