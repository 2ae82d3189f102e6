// The position grid under real keys and a real mouse.

#include <QHeaderView>
#include <QScrollBar>

#include "tests/ui/grid_screen.h"
#include "ui/column_shares.h"

namespace tr7 {
namespace {

TEST_F(GridTest, AnEditReplacesOrKeepsTheCellAndCountsWhenItEnds) {
  const std::string old = Cell(kFirst, kVel);
  Type("37");
  EXPECT_EQ(Edited() + "/" + Cell(kFirst, kVel), "37/" + old) << "not before the edit ends";
  Press("Esc");
  EXPECT_EQ(Edited() + "/" + Cell(kFirst, kVel), "none/" + old);
  Press("F2 End 5");
  EXPECT_EQ(Edited(), old + "5") << "in place";
  Press("Esc Backspace");
  EXPECT_EQ(Edited(), "");
  EXPECT_FALSE(frmPosi.PosiChanged);
  Type("37");
  Press("Return");
  EXPECT_EQ(Edited() + "/" + Cell(kFirst, kVel), "none/37");
  EXPECT_EQ(Current(), At(kFirst, kAcc));
  EXPECT_TRUE(frmPosi.PosiChanged);
  DoubleClickAt(kFirst + 2, kAcc);
  EXPECT_EQ(Edited(), Cell(kFirst + 2, kAcc));
  EXPECT_EQ(Current(), At(kFirst + 2, kAcc));
}

TEST_F(GridTest, DeleteAsksTheRuleAndACommentStopsAt20Characters) {
  const std::string old = Cell(kFirst, kVel);
  Press("Del");
  EXPECT_EQ(Cell(kFirst, kVel), old) << "a number cell is never empty";
  EXPECT_FALSE(Hint().empty());
  grid.SetText(kFirst, kComment, "away");
  GoTo(kFirst, kComment);
  Press("Del");
  EXPECT_EQ(Cell(kFirst, kComment), "");
  Type("123456789012345678901234");
  EXPECT_EQ(Edited(), "12345678901234567890");
}

TEST_F(GridTest, ARefusedEditStaysOpenWithTheOldTextAndTheReason) {
  const std::string old = Cell(kFirst, kVel);
  for (const char* key : {"Return", "Tab", "Down"}) {
    Type("99999");
    Press(key);
    EXPECT_EQ(Edited() + "/" + Cell(kFirst, kVel), old + "/" + old);
    EXPECT_EQ(Of(table->Editor()->selectedText()), old) << "the next key replaces it";
    EXPECT_EQ(Current(), At(kFirst, kVel));
    EXPECT_FALSE(Hint().empty());
    EXPECT_TRUE(table->Refusal().contains("99999") && table->Refusal().contains("50"))
        << Of(table->Refusal());
    Type("9");
    EXPECT_FALSE(table->Refusal().isEmpty()) << "until the value is taken";
  }
  // Neither the mouse nor a command gets past it.
  Type("99999");
  ClickAt(kFirst + 3, kAcc);
  EXPECT_EQ(Current(), At(kFirst, kVel));
  Type("99999");
  auto* insert = qobject_cast<QPushButton*>(desktop.forms.WidgetOf(frmPosi.cmdInsertLine));
  insert->click();
  EXPECT_EQ(grid.Rows(), kFirst + 15);
  EXPECT_FALSE(frmPosi.PosiChanged);
  Type("31");
  insert->click();
  EXPECT_EQ(grid.Rows(), kFirst + 16) << "a good edit is taken first, then the command runs";
  EXPECT_EQ(Cell(kFirst + 1, kVel), "31");
  EXPECT_TRUE(table->Refusal().isEmpty());
  // A stop gets past a refused one, as soon as the mouse goes down.
  Type("99999");
  int stops = 0;
  frmMain.cmdStopNow.Click = [&stops] { ++stops; };
  frmMain.cmdStopNow.Enabled = true;
  desktop.forms.Refresh();
  QTest::mousePress(desktop.forms.WidgetOf(frmMain.cmdStopNow), Qt::LeftButton);
  EXPECT_EQ(stops, 1);
}

TEST_F(GridTest, KeysMoveTheCurrentCell) {
  const int last = kFirst + 14;
  const std::tuple<const char*, At, At> moves[] = {
      {"Right", {kFirst, 1}, {kFirst, 2}},
      {"Left", {kFirst, 1}, {kFirst, 1}},
      {"Right", {kFirst, kComment}, {kFirst, kComment}},
      {"Down", {kFirst, 3}, {kFirst + 1, 3}},
      {"Down", {last, 3}, {last, 3}},
      {"Home", {5, 9}, {5, 1}},
      {"End", {5, 9}, {5, kComment}},
      {"Ctrl+Home", {5, 9}, {kFirst, 1}},
      {"Ctrl+End", {5, 9}, {last, kComment}},
      {"Ctrl+Down", {9, 9}, {last, 9}},
      {"PgDown", {kFirst, 4}, {last, 4}},
      {"PgUp", {last, 4}, {kFirst, 4}},
      {"Return", {kFirst, 1}, {kFirst, 2}},
      {"Enter", {kFirst, kComment}, {kFirst + 1, 1}},
      {"Shift+Return", {kFirst, 2}, {kFirst, 1}},
      {"Tab", {kFirst, kSm}, {kFirst, kComment}},
      {"Tab", {kFirst, kComment}, {kFirst + 1, 1}},
      {"Shift+Backtab", {kFirst + 1, 1}, {kFirst, kComment}},
      {"Shift+Backtab", {kFirst, 1}, {kFirst, 1}},
      {"Tab", {last, kComment}, {last, kComment}},
      {"Return", {0, 0}, {kFirst, 1}},  // the header, where a check leaves the cursor
  };
  for (const auto& [key, from, to] : moves) {
    GoTo(from.first, from.second);
    Press(key);
    EXPECT_EQ(Current(), to) << key << " from " << from.first << "," << from.second;
    EXPECT_EQ(Corner(), Current());
  }
}

TEST_F(GridTest, ArrowsEndATypedEditAndMoveInsideOneInPlace) {
  Type("41");
  Press("Right");
  EXPECT_EQ(Cell(kFirst, kVel), "41");
  EXPECT_EQ(Current(), At(kFirst, kAcc));
  grid.SetText(kFirst, kAcc, "100");
  Press("F2 F2 Left");  // the second puts the cursor behind the text
  EXPECT_TRUE(table->IsEditing());
  EXPECT_EQ(table->Editor()->cursorPosition(), 2);
  Press("5 Down");
  EXPECT_EQ(Cell(kFirst, kAcc), "1050");
  EXPECT_EQ(Current(), At(kFirst + 1, kAcc));
}

TEST_F(GridTest, KeysAndTheMouseSelectCellsLinesAndColumns) {
  QWidget* body = table->viewport();
  QHeaderView &lines = *table->verticalHeader(), &columns = *table->horizontalHeader();
  const auto expect = [this](const At& current, const At& corner) {
    EXPECT_EQ(Current(), current);
    EXPECT_EQ(Corner(), corner);
  };
  GoTo(5, 3);
  Press("Shift+Down Shift+Down Shift+Right");
  expect({5, 3}, {7, 4});
  Press("Shift+End");
  expect({5, 3}, {7, kComment});
  Press("2");
  expect({5, 3}, {5, 3});  // an edit is of one cell
  Press("Esc Ctrl+A");
  expect({kFirst, 1}, {kFirst + 14, kComment});
  ClickAt(4, 2);
  expect({4, 2}, {4, 2});
  ClickAt(6, 3, Qt::ShiftModifier);
  expect({4, 2}, {6, 3});
  QTest::mousePress(body, Qt::LeftButton, {}, Middle(7, 1));
  QTest::mouseMove(body, Middle(9, 2));
  QTest::mouseRelease(body, Qt::LeftButton, {}, Middle(9, 2));
  expect({7, 1}, {9, 2});
  const QPoint third(5, lines.sectionViewportPosition(2) + 5);
  QTest::mouseClick(lines.viewport(), Qt::LeftButton, {}, third);
  expect({kFirst + 2, 1}, {kFirst + 2, kComment});
  const QPoint speed(columns.sectionViewportPosition(kVel - 1) + 5, columns.height() - 5);
  QTest::mouseClick(columns.viewport(), Qt::LeftButton, {}, speed);
  expect({kFirst, kVel}, {kFirst + 14, kVel});
}

TEST_F(GridTest, CopiesGoToTheSystemsClipboardAsASpreadsheetTakesThem) {
  grid.SetText(kFirst, kVel, "11");
  grid.SetText(kFirst + 1, kVel, "12");
  GoTo(kFirst, kVel);
  Press("Shift+Down Ctrl+C");
  EXPECT_EQ(Of(SystemText()), "11\r\n12");
  GoTo(kFirst, 1);
  Press("Shift+End Ctrl+C");
  EXPECT_EQ(SystemText().count('\t'), 27);
  EXPECT_TRUE(Of(SystemText()).starts_with("11\t"));
}

class ProgramGridTest : public GridTest {
 protected:
  void SetUp() override { Start(true); }
};

TEST_F(ProgramGridTest, KeysSkipHiddenColumnsAndEnterGrowsTheTableAtItsEnd) {
  EXPECT_EQ(Current(), At(kFirst, kPosi));
  Press("Return");
  EXPECT_EQ(Current(), At(kFirst, AxisBase(1) + kPosi));
  GoTo(kFirst + 14, kComment);
  Press("Return");
  EXPECT_EQ(grid.Rows(), kFirst + 16);
  EXPECT_EQ(Current(), At(kFirst + 15, kPosi));
  GoTo(kFirst, AxisBase(3) + kPosi);
  Press("Right");
  EXPECT_EQ(Current(), At(kFirst, kComment));
}

TEST_F(GridTest, DevicesStandOverTheirAxesWhereverTheGridIsScrolledTo) {
  table->window()->resize(800, 560);
  for (const int scrolled : {0, 337, 500, 1000}) {
    Settle();
    table->horizontalScrollBar()->setValue(scrolled);
    for (int axis = 0; axis < kAxes; ++axis) {
      const QWidget& label = *desktop.forms.WidgetOf(*frmPosi.lblDeviceType[axis]);
      const QPoint cell = table->CellRect(kFirst, AxisBase(axis) + kVel).topLeft();
      const int first = table->viewport()->mapTo(table->window(), cell).x();
      if (first < 0 || first + 180 >= 800) continue;  // not in sight as a whole
      const int beside = label.mapTo(table->window(), QPoint()).x() - first;
      EXPECT_TRUE(label.isVisible() && beside >= 0 && beside < 20) << axis << " at " << first;
    }
  }
}

TEST_F(ProgramGridTest, DevicesKeepToTheirColumns) {
  for (int axis = 0; axis < kAxes; ++axis) {
    const QWidget& label = *desktop.forms.WidgetOf(*frmPosi.lblDeviceType[axis]);
    const QRect cell = table->CellRect(kFirst, AxisBase(axis) + kPosi);
    const int first = table->viewport()->mapTo(table->window(), cell.topLeft()).x();
    const int beside = label.mapTo(table->window(), QPoint()).x() - first;
    EXPECT_TRUE(label.isVisible() && beside >= 0 && beside + label.width() <= cell.width() + 4)
        << axis << " at " << beside << ", " << label.width() << " in " << cell.width();
  }
}

TEST(ColumnSharesTest, WhatOneTakesBeyondItsShareTheOthersGive) {
  using Widths = std::vector<int>;
  EXPECT_EQ(ColumnShares(300, {1, 0, 1, 1}, {50, 9, 160, 60}), (Widths{70, 0, 160, 70}));
  EXPECT_EQ(ColumnShares(300, {1, 1, 1}, {60, 160, 80}), (Widths{60, 160, 80}));
  EXPECT_EQ(ColumnShares(100, {3, 1}, {90, 40}), (Widths{90, 40})) << "no text is cut";
}

}  // namespace
}  // namespace tr7
