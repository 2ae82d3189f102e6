// Whole lines: insert, delete, the line that the Enter key adds; copy and paste.

#include "posi/posi_lines.h"

#include "forms/frm_main.h"
#include "posi/posi_check.h"
#include "posi/posi_clipboard.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/text.h"
#include "tests/support/posi_table_test.h"

namespace tr7 {
namespace {

constexpr int kAxisTwoPosi = 6 + kPosi;

class PosiLines : public PosiTableTest {
 protected:
  /// "first-last: VEL of each line".
  std::string Shown() const {
    const Grid& grid = frmPosi.flgdData;
    std::string text =
        std::to_string(AppState.PosiFirstNo) + "-" + std::to_string(AppState.PosiLastNo) + ":";
    for (int row = kPosiHeaderRows; row < grid.Rows(); ++row) {
      EXPECT_EQ(grid.Text(row, 0), std::to_string(PositionOfRow(row)));
      text += " " + grid.Text(row, kVel);
    }
    EXPECT_EQ(AppState.PosiCount, grid.Rows() - kPosiHeaderRows);
    return text;
  }
  void Numbered(int first, int last) {
    ShowTable(first, last);
    for (int n = first; n <= last; ++n) Type(n, kVel, std::to_string(n));
    frmPosi.PosiChanged = False;
  }
  void Paste(const std::string& text) {
    virt.clipboard.text = text;
    forms.boxes.clear();
    forms.beeps = 0;
    cmdPosiPaste_Click();
  }
  std::string Copied(int number, int col, int number_end, int col_end) {
    Select(number, col, number_end, col_end);
    virt.clipboard.text.clear();
    forms.boxes.clear();
    cmdPosiCopy_Click();
    return virt.clipboard.text;
  }
  static const std::string& Panel() { return frmMain.sbStatusBar.Panels[kPanelError]; }
};

TEST_F(PosiLines, InsertPutsDefaultsAboveAndRenumbers) {
  Numbered(5, 7);
  Select(6, kVel, 6, kVel);
  frmPosi.cmdInsertLine.Press();
  EXPECT_EQ(Shown(), "5-8: 5 30 6 7");
  EXPECT_TRUE(frmPosi.PosiChanged);
  ASSERT_TRUE(PosiDataCheckAll());
  EXPECT_EQ(Stored(kVel, 8), 7) << "the commit follows the new numbers";
  ShowTable(998, 999);
  Select(998, kVel, 998, kVel);
  cmdInsertLine_Click();
  EXPECT_FALSE(AppendLine());
  EXPECT_EQ(Shown(), "998-999: 30 30");
}

TEST_F(PosiLines, DeleteTakesTheSelectedLines) {
  Numbered(1, 5);
  Select(4, kVel, 2, kPs);
  frmMain.mnuEditLineDelete.Press();
  EXPECT_EQ(Shown(), "1-2: 1 5");
  EXPECT_EQ(frmPosi.flgdData.Row, RowOfPosition(2));
  frmPosi.flgdData.SelectCell(0, 0);
  cmdInsertLine_Click();
  cmdDeleteLine_Click();
  EXPECT_TRUE(BoxShown(Text(388)) && BoxShown(Text(386))) << "a header is no line";
  Select(1, kVel, 2, kVel);
  frmPosi.cmdDeleteLine.Press();
  EXPECT_EQ(AppState.PosiLastNo, 0) << "no table is left";
  cmdDeleteLine_Click();
  EXPECT_TRUE(BoxShown(Text(433)));
}

TEST_F(PosiLines, EnterWalksTheShownColumnsAndAddsALineInProgramMode) {
  ShowTable(1, 2, true);
  AppState.AxisMuko[1] = True;
  SizeInit_PosFlexGridAtPrgMode3();
  Grid& grid = frmPosi.flgdData;
  grid.SelectCell(RowOfPosition(2), kPosi);
  std::string way;
  for (int i = 0; i < 5; ++i) {
    grid.MoveOn(false);
    way += std::to_string(grid.Row) + "/" + std::to_string(grid.Col) + " ";
  }
  EXPECT_EQ(way, "3/16 3/22 3/28 4/4 4/16 ");
  EXPECT_EQ(AppState.PosiLastNo, 3);
  EXPECT_EQ(Cell(3, kPosi), "       N");
  grid.SelectCell(RowOfPosition(1), kPosi);
  grid.MoveOn(true);
  EXPECT_EQ(grid.Col, kPosi) << "nothing stands in front of the first cell";
  ShowTable(1, 2);
  grid.SelectCell(RowOfPosition(2), kComment);
  grid.MoveOn(false);
  EXPECT_EQ(AppState.PosiLastNo, 2) << "position mode stays in the last cell";
}

TEST_F(PosiLines, CopiesWholeLinesAndPartsOfOneColumn) {
  Numbered(1, 4);
  EXPECT_EQ(Copied(2, kVel, 3, kVel), "2\r3");
  EXPECT_TRUE(frmPosi.CopiedIsColumn);
  EXPECT_EQ(Copied(2, kVel, 3, kAcc), "");
  EXPECT_TRUE(BoxShown(Text(335)));
  const std::string lines = Copied(3, 1, 2, kComment);
  EXPECT_TRUE(frmPosi.CopiedIsLine);
  EXPECT_TRUE(lines.starts_with("2\t100\t"));
  Select(1, kVel, 1, kVel);
  Paste(lines);
  EXPECT_EQ(Shown(), "1-4: 2 3 3 4");
}

TEST_F(PosiLines, PastesWhatASpreadsheetGivesAndRefusesWhatIsNone) {
  std::string line;
  for (int col = 1; col < kComment; ++col) {
    const int field = AxisOfColumn(col) < 0 ? 0 : FieldOfColumn(col);
    line += field == kVel ? "9\t" : field == kAcc ? "100\t" : "0\t";
  }
  const struct {
    std::string text;
    const char* vels;
    int beeps = 0;
    MsgId box{};
  } rows[] = {{"7\r8", "7 8 3"},
              {"7\r\n8\r\n", "7 8 3"},
              {"7\n8\n", "7 8 3"},
              {"7\r999\r8", "7 2 8", 1},
              {"fast", "1 2 3", 1},
              {"7\r8\r9\r10", "7 8 9"},
              {line + "\r\n" + line + "\r\n", "9 9 3"},
              {"", "1 2 3", 0, 336},
              {"7\t8", "1 2 3", 0, 336},
              {line + "\r7", "1 2 3", 0, 336},
              {line + "\t1", "1 2 3", 0, 336}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    Numbered(1, 3);
    Select(1, kVel, 1, kVel);
    Paste(row.text);
    EXPECT_EQ(Shown(), std::string("1-3: ") + row.vels);
    EXPECT_EQ(forms.beeps, row.beeps);
    EXPECT_EQ(Boxes(), row.box ? Texts{Text(row.box)} : Texts{});
    EXPECT_EQ(bool(frmPosi.PosiChanged), row.vels != std::string("1 2 3"));
  }
}

TEST_F(PosiLines, APasteHasItsPlaces) {
  Numbered(1, 3);
  const std::string line = Copied(1, 1, 1, kComment);
  Select(2, kWay, 2, kWay);
  Paste(line);
  EXPECT_TRUE(BoxShown(Text(393)));
  Select(2, kVel, 2, kAcc);
  Paste("7");
  EXPECT_TRUE(BoxShown(Text(481)));
  EXPECT_EQ(Shown(), "1-3: 1 2 3");
  ShowTable(1, 3, true);
  frmPosi.flgdData.SelectCell(RowOfPosition(2), kAxisTwoPosi);
  Paste(line + "x");
  EXPECT_TRUE(BoxShown(Text(580)));
}

TEST_F(PosiLines, ALineOfProgramModeIsItsPositionsAndComment) {
  ShowTable(1, 4, true);
  AppState.AxisMuko[0] = True;
  SizeInit_PosFlexGridAtPrgMode3();
  Type(1, kAxisTwoPosi, "+250");
  Type(1, kComment, "up");
  Put(3, kAxisTwoPosi + 1, "7");  // hidden: no paste reaches it
  const std::string line = Copied(1, kAxisTwoPosi, 1, kComment);
  EXPECT_TRUE(frmPosi.CopiedIsLine);
  for (const int col : {1, kAxisTwoPosi}) {
    Select(3, col, 4, col);
    Paste(line);
    EXPECT_EQ(Cell(4, kAxisTwoPosi) + Cell(4, kComment), "    +250up") << "one line into each";
    EXPECT_EQ(Cell(3, kAxisTwoPosi + 1), "7");
    Put(4, kAxisTwoPosi, "");
  }
}

TEST_F(PosiLines, TheStatusPanelTellsWhatWasNotPasted) {
  Numbered(1, 3);
  Select(2, kVel, 2, kVel);
  Paste("50\r76\r1");
  EXPECT_EQ(Panel(),
            "Cells not pasted: 1, the first at No. 3 VEL1. Input Range : 1 to 75(mm/sec) "
            "Lines beyond the last one not pasted: 1. ");
  Select(1, kComment, 1, kComment);
  Paste("\"to\tthe\"\r\n\"left, then up\"\r\n");
  EXPECT_EQ(Cell(1, kComment), "") << "a comment is one line of plain characters";
  EXPECT_EQ(Cell(2, kComment), "left, then up") << "a spreadsheet's quotes are not the text's";
  Paste("five\rfour and twenty blackbirds");
  EXPECT_EQ(Panel(), "Comments cut to 20 characters: 1, the first at No. 2 COMMENT. ");
  Select(3, kAcc, 3, kAcc);
  Paste("44");
  EXPECT_EQ(Panel(), "Numbers rounded: 1, the first at No. 3 ACC1. ");
}

TEST_F(PosiLines, APositionOfAnotherUnitIsNotTakenForThisOne) {
  ShowTable(1, 3);
  const std::string pulses = Copied(1, kPosi, 1, kPosi);
  ShowTable(1, 3, false, true);
  Select(1, kPosi, 1, kPosi);
  Paste(pulses);
  EXPECT_TRUE(BoxShown(Text(6362)));
  EXPECT_EQ(Copied(1, kPosi, 2, kPosi), "0.000\r0.000") << "without the blanks that align";
}

}  // namespace
}  // namespace tr7
