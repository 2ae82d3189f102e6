// Whole lines: insert and delete; copy and paste; undo.

#include "posi/posi_edits.h"
#include "tests/fleet/random.h"
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
}

TEST_F(PosiLines, DeleteTakesTheSelectedLines) {
  Numbered(1, 5);
  Select(4, kVel, 2, kPs);
  frmMain.mnuEditLineDelete.Press();
  EXPECT_EQ(Shown(), "1-2: 1 5");
  EXPECT_EQ(frmPosi.flgdData.Row, RowOfPosition(2));
  EXPECT_EQ(forms.focus, &frmPosi.flgdData);
  Select(1, kVel, 2, kVel);
  frmPosi.cmdDeleteLine.Press();
  EXPECT_EQ(AppState.PosiLastNo, 0) << "no table is left";
  cmdDeleteLine_Click();
  EXPECT_TRUE(BoxShown(Text(433)));
}

TEST_F(PosiLines, CopiesWholeLinesAndPartsOfOneColumn) {
  Numbered(1, 4);
  EXPECT_EQ(Copied(2, kVel, 3, kVel), "2\r3");
  EXPECT_TRUE(frmPosi.CopiedIsColumn);
  EXPECT_EQ(Copied(2, kVel, 3, kAcc), "");
  EXPECT_TRUE(BoxShown(Text(335)));
  Paste("7");
  EXPECT_TRUE(BoxShown(Text(481))) << "two columns are no place for it";
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

class PosiUndoTest : public PosiTableTest {
 protected:
  static std::string Shown() {
    const Grid& grid = frmPosi.flgdData;
    std::string text;
    for (int row = 0; row < grid.Rows(); ++row) {
      for (int col = 0; col < kPosiColumns; ++col) text += grid.Text(row, col) + "|";
    }
    return text;
  }
  void EditAtRandom(Random& random) {
    const int first = random.Between(1, AppState.PosiCount);
    const int last = random.Between(first, std::min<int>(first + 3, AppState.PosiCount));
    Select(first, kVel, last, kVel);
    switch (random.Between(0, 4)) {
      case 0:
        return cmdInsertLine_Click();
      case 1:
        if (last - first + 1 < AppState.PosiCount) cmdDeleteLine_Click();
        return;
      case 2:
        virt.clipboard.text = std::to_string(random.Between(1, 60));
        return cmdPosiPaste_Click();
      case 3:
        static_cast<void>(PosiDataCheckAll());
        return;
      default:
        Type(first, kVel, std::to_string(random.Between(1, 60)));
    }
  }
};

TEST_F(PosiUndoTest, AnyEditsComeBackOneByOneAndGoForwardAgain) {
  Random random(7);
  ShowTable(1, 12);
  std::vector<std::string> shown{Shown()};
  while (shown.size() < kMostPosiEdits + 20) {
    EditAtRandom(random);
    if (Shown() != shown.back()) shown.push_back(Shown());
  }
  const std::size_t end = shown.size() - 1;
  for (std::size_t back = 1; back <= kMostPosiEdits; ++back) {
    frmMain.mnuEditUndo.Press();
    ASSERT_EQ(Shown(), shown[end - back]) << back;
  }
  EXPECT_FALSE(frmMain.mnuEditUndo.Enabled) << "no more than these are kept";
  for (std::size_t back = kMostPosiEdits; back-- > 0;) {
    frmMain.mnuEditRedo.Press();
    ASSERT_EQ(Shown(), shown[end - back]) << back;
  }
  EXPECT_TRUE(PosiDataCheckAll()) << "numbers and range are those of the lines";
}

TEST_F(PosiUndoTest, AChangeOfUnitIsAStep) {
  ShowTable(1, 3, false, true);
  const auto state = [] {
    return Shown() + (AppState.DispMmUnit ? "mm" : "pls") + (frmPosi.PosiChanged ? "*" : "");
  };
  std::vector<std::string> states{state()};
  for (const char* typed : {"", "", "1.003", "", "135"}) {  // the unit, there and back, is no step
    *typed ? static_cast<void>(Type(2, kPosi, typed)) : frmMain.mnuViewUnit.Press();
    states.push_back(state());
  }
  EXPECT_EQ(states[2], states[0]);
  for (const std::size_t at : {4, 3, 2}) {
    frmMain.mnuEditUndo.Press();
    EXPECT_EQ(state(), states[at]);
  }
  EXPECT_FALSE(frmMain.mnuEditUndo.Enabled);
  for (const std::size_t at : {3, 4, 5}) {
    frmMain.mnuEditRedo.Press();
    EXPECT_EQ(state(), states[at]);
  }
}

TEST_F(PosiUndoTest, WhatTheFileHoldsIsNoChange) {
  ShowTable(1, 3);
  Type(1, kVel, "7");
  frmMain.mnuEditUndo.Press();
  EXPECT_FALSE(frmPosi.PosiChanged);
  frmMain.mnuEditRedo.Press();
  PosiEditsAreSaved();
  frmMain.mnuEditUndo.Press();
  EXPECT_TRUE(frmPosi.PosiChanged) << "the file holds the edit";
}

TEST_F(PosiUndoTest, ALengthThatWasTakenBackStaysSo) {
  ShowTable(5, 12);
  const std::string shown = Shown();
  Type(10, kPosi, "500");
  frmMain.mnuEditUndo.Press();
  frmPosi.LayoutChanged();
  EXPECT_EQ(Shown(), shown);
  EXPECT_FALSE(frmPosi.PosiChanged);
  EXPECT_TRUE(AppendLine() && PosiDataCheckAll());
  Type(10, kPosi, "500");
  for (int steps = 0; steps < 2; ++steps) frmMain.mnuEditUndo.Press();
  frmPosi.LayoutChanged();
  EXPECT_EQ(Shown(), shown) << "also over a commit";
}

}  // namespace
}  // namespace tr7
