// The position grid under real keys and a real mouse.

#include <QHeaderView>
#include <QPushButton>

#include "tests/ui/grid_screen.h"

namespace tr7 {
namespace {

TEST_F(GridTest, AnEditReplacesOrKeepsTheCellAndCountsWhenItEnds) {
  const std::string old = Cell(kFirst, kVel);
  Keys("37");
  EXPECT_EQ(Edited() + "/" + Cell(kFirst, kVel), "37/" + old) << "not before the edit ends";
  Key(Qt::Key_Escape);
  EXPECT_EQ(Edited() + "/" + Cell(kFirst, kVel), "none/" + old);
  Key(Qt::Key_F2);
  Key(Qt::Key_End);
  Keys("5");
  EXPECT_EQ(Edited(), old + "5") << "in place";
  Key(Qt::Key_Escape);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Edited(), "");
  EXPECT_FALSE(frmPosi.PosiChanged);
  Keys("37");
  Key(Qt::Key_Return);
  EXPECT_EQ(Edited() + "/" + Cell(kFirst, kVel), "none/37");
  EXPECT_EQ(Current(), At(kFirst, kAcc));
  EXPECT_TRUE(frmPosi.PosiChanged);
  QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, Middle(kFirst + 2, kAcc));
  EXPECT_EQ(Edited(), Cell(kFirst + 2, kAcc));
  EXPECT_EQ(Current(), At(kFirst + 2, kAcc));
}

TEST_F(GridTest, DeleteAsksTheRuleAndACommentStopsAt20Characters) {
  const std::string old = Cell(kFirst, kVel);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Cell(kFirst, kVel), old) << "a number cell is never empty";
  EXPECT_FALSE(Hint().empty());
  grid.SetText(kFirst, kComment, "away");
  GoTo(kFirst, kComment);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Cell(kFirst, kComment), "");
  Keys("123456789012345678901234");
  EXPECT_EQ(Edited(), "12345678901234567890");
}

TEST_F(GridTest, ARefusedEditStaysOpenWithTheOldTextAndTheReason) {
  const std::string old = Cell(kFirst, kVel);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down}) {
    Keys("99999");
    Key(key);
    EXPECT_EQ(Edited(), old);
    EXPECT_EQ(Of(table->Editor()->selectedText()), old) << "the next key replaces it";
    EXPECT_EQ(Current(), At(kFirst, kVel));
    EXPECT_EQ(Cell(kFirst, kVel), old);
    EXPECT_FALSE(Hint().empty());
    EXPECT_TRUE(table->Refusal().contains("99999") && table->Refusal().contains("50"))
        << Of(table->Refusal());
    Keys("9");
    EXPECT_FALSE(table->Refusal().isEmpty()) << "until the value is taken";
  }
  // Neither the mouse nor a command gets past it.
  Keys("99999");
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, Middle(kFirst + 3, kAcc));
  EXPECT_EQ(Current(), At(kFirst, kVel));
  Keys("99999");
  auto* insert = qobject_cast<QPushButton*>(desktop.forms.WidgetOf(frmPosi.cmdInsertLine));
  insert->click();
  EXPECT_EQ(grid.Rows(), kFirst + 15);
  EXPECT_FALSE(frmPosi.PosiChanged);
  Keys("31");
  insert->click();
  EXPECT_EQ(grid.Rows(), kFirst + 16) << "a good edit is taken first, then the command runs";
  EXPECT_EQ(Cell(kFirst + 1, kVel), "31");
  EXPECT_TRUE(table->Refusal().isEmpty());
}

TEST_F(GridTest, ClosingTakesAnOpenEditOrStaysForARefusedOne) {
  user.on_box = [](const std::string&) { return MsgAnswer::Cancel; };
  Keys("99999");
  table->window()->close();
  EXPECT_TRUE(user.boxes.empty()) << "nothing else is asked before";
  EXPECT_TRUE(table->IsEditing());
  EXPECT_FALSE(table->Refusal().isEmpty());
  Keys("37");
  table->window()->close();
  EXPECT_EQ(user.boxes, std::vector{Text(391)});
  EXPECT_EQ(Cell(kFirst, kVel), "37");
  // A double click on the mode is a command too.
  int clicks = 0;
  frmMain.lblCtMode.DblClick = [&clicks] { ++clicks; };
  Keys("99999");
  QTest::mouseDClick(desktop.forms.WidgetOf(frmMain.lblCtMode), Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
}

struct Move {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  At from, to;
};

TEST_F(GridTest, KeysMoveTheCurrentCell) {
  const int last = kFirst + 14;
  const Qt::KeyboardModifiers none = Qt::NoModifier, shift = Qt::ShiftModifier,
                              control = Qt::ControlModifier;
  const Move moves[] = {
      {Qt::Key_Right, none, {kFirst, 1}, {kFirst, 2}},
      {Qt::Key_Left, none, {kFirst, 1}, {kFirst, 1}},
      {Qt::Key_Right, none, {kFirst, kComment}, {kFirst, kComment}},
      {Qt::Key_Down, none, {kFirst, 3}, {kFirst + 1, 3}},
      {Qt::Key_Up, none, {kFirst, 3}, {kFirst, 3}},
      {Qt::Key_Down, none, {last, 3}, {last, 3}},
      {Qt::Key_Home, none, {5, 9}, {5, 1}},
      {Qt::Key_End, none, {5, 9}, {5, kComment}},
      {Qt::Key_Home, control, {5, 9}, {kFirst, 1}},
      {Qt::Key_End, control, {5, 9}, {last, kComment}},
      {Qt::Key_Up, control, {9, 9}, {kFirst, 9}},
      {Qt::Key_Down, control, {9, 9}, {last, 9}},
      {Qt::Key_PageDown, none, {kFirst, 4}, {last, 4}},
      {Qt::Key_PageUp, none, {last, 4}, {kFirst, 4}},
      {Qt::Key_Return, none, {kFirst, 1}, {kFirst, 2}},
      {Qt::Key_Enter, none, {kFirst, kComment}, {kFirst + 1, 1}},
      {Qt::Key_Return, shift, {kFirst, 2}, {kFirst, 1}},
      {Qt::Key_Tab, none, {kFirst, kSm}, {kFirst, kComment}},
      {Qt::Key_Tab, none, {kFirst, kComment}, {kFirst + 1, 1}},
      {Qt::Key_Backtab, shift, {kFirst + 1, 1}, {kFirst, kComment}},
      {Qt::Key_Backtab, shift, {kFirst, 1}, {kFirst, 1}},
      {Qt::Key_Tab, none, {last, kComment}, {last, kComment}},
  };
  for (const Move& move : moves) {
    GoTo(move.from.first, move.from.second);
    Key(move.key, move.modifiers);
    EXPECT_EQ(Current(), move.to) << "key " << std::hex << move.key << " from " << std::dec
                                  << move.from.first << "," << move.from.second;
    EXPECT_EQ(Corner(), Current());
  }
}

TEST_F(GridTest, ArrowsEndATypedEditAndMoveInsideOneInPlace) {
  Keys("41");
  Key(Qt::Key_Right);
  EXPECT_EQ(Cell(kFirst, kVel), "41");
  EXPECT_EQ(Current(), At(kFirst, kAcc));
  grid.SetText(kFirst, kAcc, "100");
  Key(Qt::Key_F2);
  Key(Qt::Key_F2);  // the cursor behind the text
  Key(Qt::Key_Left);
  EXPECT_TRUE(table->IsEditing());
  EXPECT_EQ(table->Editor()->cursorPosition(), 2);
  Keys("5");
  Key(Qt::Key_Down);
  EXPECT_EQ(Cell(kFirst, kAcc), "1050");
  EXPECT_EQ(Current(), At(kFirst + 1, kAcc));
}

TEST_F(GridTest, ShiftMovesTheOtherCornerOfTheSelection) {
  GoTo(5, 3);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right}) {
    Key(key, Qt::ShiftModifier);
  }
  EXPECT_EQ(Current(), At(5, 3));
  EXPECT_EQ(Corner(), At(7, 4));
  Key(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(Corner(), At(7, kComment));
  Keys("2");
  EXPECT_EQ(Corner(), Current()) << "an edit is of one cell";
  Key(Qt::Key_Escape);
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Current(), At(kFirst, 1));
  EXPECT_EQ(Corner(), At(kFirst + 14, kComment));
}

TEST_F(GridTest, TheMouseSelectsCellsLinesAndColumns) {
  QWidget* body = table->viewport();
  QHeaderView &lines = *table->verticalHeader(), &columns = *table->horizontalHeader();
  const QPoint third(5, lines.sectionViewportPosition(2) + 5);
  const QPoint speed(columns.sectionViewportPosition(kVel - 1) + 5, columns.height() - 5);
  const auto expect = [this](const At& current, const At& corner) {
    EXPECT_EQ(Current(), current);
    EXPECT_EQ(Corner(), corner);
  };
  QTest::mouseClick(body, Qt::LeftButton, {}, Middle(4, 2));
  expect({4, 2}, {4, 2});
  QTest::mouseClick(body, Qt::LeftButton, Qt::ShiftModifier, Middle(6, 3));
  expect({4, 2}, {6, 3});
  QTest::mousePress(body, Qt::LeftButton, {}, Middle(7, 1));
  QTest::mouseMove(body, Middle(9, 2));
  QTest::mouseRelease(body, Qt::LeftButton, {}, Middle(9, 2));
  expect({7, 1}, {9, 2});
  QTest::mouseClick(lines.viewport(), Qt::LeftButton, {}, third);
  expect({kFirst + 2, 1}, {kFirst + 2, kComment});
  QTest::mouseClick(columns.viewport(), Qt::LeftButton, {}, speed);
  expect({kFirst, kVel}, {kFirst + 14, kVel});
}

TEST_F(GridTest, TheFixedRowsAreNeverCells) {
  GoTo(0, 0);  // where a check leaves the cursor
  Keys("5");
  Key(Qt::Key_F2);
  EXPECT_FALSE(table->IsEditing());
  Key(Qt::Key_Return);
  EXPECT_EQ(Current(), At(kFirst, 1));
}

TEST_F(GridTest, TheInputMethodIsOffInNumberCells) {
  for (const int col : {int{kVel}, int{kPosi}, int{kSm}}) {
    GoTo(kFirst, col);
    EXPECT_FALSE(table->testAttribute(Qt::WA_InputMethodEnabled)) << col;
    Key(Qt::Key_F2);
    EXPECT_FALSE(table->Editor()->testAttribute(Qt::WA_InputMethodEnabled)) << col;
    Key(Qt::Key_Escape);
  }
  GoTo(kFirst, kComment);
  EXPECT_TRUE(table->testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent composed(QString(), {});
  composed.setCommitString(QString::fromUtf8("原点"));
  QCoreApplication::sendEvent(table, &composed);
  EXPECT_EQ(Edited(), "原点");
  Key(Qt::Key_Return);
  EXPECT_EQ(Cell(kFirst, kComment), "原点");
}

TEST_F(GridTest, CopiesGoToTheSystemsClipboardAsASpreadsheetTakesThem) {
  grid.SetText(kFirst, kVel, "11");
  grid.SetText(kFirst + 1, kVel, "12");
  GoTo(kFirst, kVel);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Of(SystemText()), "11\r\n12");
  GoTo(kFirst, 1);
  Key(Qt::Key_End, Qt::ShiftModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(SystemText().count('\t'), 27);
  EXPECT_TRUE(Of(SystemText()).starts_with("11\t"));
}

TEST_F(GridTest, WhatASpreadsheetCopiedIsPastedIntoCellsOrIntoTheOpenEdit) {
  for (const char* text : {"21\n22\n23\n", "21\r\n22\r\n23\r\n", "21\r22\r23"}) {
    for (int row = kFirst; row < kFirst + 4; ++row) grid.SetText(row, kVel, "30");
    QGuiApplication::clipboard()->setText(text);
    GoTo(kFirst, kVel);
    Key(Qt::Key_V, Qt::ControlModifier);
    std::string cells;
    for (int row = kFirst; row < kFirst + 4; ++row) cells += Cell(row, kVel) + " ";
    EXPECT_EQ(cells, "21 22 23 30 ");
  }
  QGuiApplication::clipboard()->setText("45");
  Key(Qt::Key_F2);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Edited(), "45");
}

TEST_F(GridTest, F6LeavesTheGridAndNothingIsEditedWhileItIsOff) {
  table->setFocus();
  ASSERT_TRUE(table->hasFocus() || !table->window()->isActiveWindow());
  Key(Qt::Key_F6);
  EXPECT_FALSE(table->hasFocus());
  grid.Enabled = false;
  Settle();
  Keys("5");
  QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, Middle(kFirst, kVel));
  EXPECT_FALSE(table->IsEditing());
}

class ProgramGridTest : public GridTest {
 protected:
  void SetUp() override { Start(true); }
};

TEST_F(ProgramGridTest, EnterSkipsHiddenColumnsAndGrowsTheTableAtItsEnd) {
  EXPECT_EQ(Current(), At(kFirst, kPosi));
  Key(Qt::Key_Return);
  EXPECT_EQ(Current(), At(kFirst, AxisBase(1) + kPosi));
  GoTo(kFirst + 14, kComment);
  Key(Qt::Key_Return);
  EXPECT_EQ(grid.Rows(), kFirst + 16);
  EXPECT_EQ(Current(), At(kFirst + 15, kPosi));
  GoTo(kFirst, AxisBase(3) + kPosi);
  Key(Qt::Key_Right);
  EXPECT_EQ(Current(), At(kFirst, kComment));
}

}  // namespace
}  // namespace tr7
