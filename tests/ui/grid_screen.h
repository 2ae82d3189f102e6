#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <utility>

#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "tests/ui/ui_test.h"
#include "ui/grid_table.h"

namespace tr7 {

constexpr int kFirst = kPosiHeaderRows;

using At = std::pair<int, int>;

/// The position grid on the screen, with the user's hands on it.
class GridTest : public UiTest {
 protected:
  void SetUp() override { Start(false); }

  /// The tool offline, with the new table of 15 lines that it proposes.
  void Start(bool program_mode) {
    StartOffline(program_mode);
    frmPosi.cmdPosiNew.Press();
    ASSERT_EQ(grid.Rows(), kFirst + 15);
    Settle();
    table = qobject_cast<GridTable*>(desktop.forms.WidgetOf(grid));
    ASSERT_NE(table, nullptr);
    Activate(*table);
    GoTo(kFirst, FirstShownColumn());
  }
  void GoTo(int row, int col) {
    grid.SelectCell(row, col);
    Settle();
  }
  void Press(const char* keys) { PressKeys(*table, keys); }
  void Type(const char* text) {
    for (; *text; ++text) {
      QWidget* target = table->Editor();
      QTest::keyClick(target ? target : table, *text);
    }
  }
  std::string Cell(int row, int col) const { return grid.Text(row, col); }
  void ClickAt(int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, Middle(row, col));
  }
  void DoubleClickAt(int row, int col) {
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, Middle(row, col));
  }
  At Current() const { return {grid.Row, grid.Col}; }
  At Corner() const { return {grid.RowSel, grid.ColSel}; }
  std::string Edited() const { return table->Editor() ? Of(table->Editor()->text()) : "none"; }
  static std::string Of(const QString& text) { return text.toStdString(); }
  QPoint Middle(int row, int col) const { return table->CellRect(row, col).center(); }
  static QString SystemText() { return QGuiApplication::clipboard()->text(); }
  std::string Hint() const { return frmMain.sbStatusBar.Panels[kPanelError]; }

  Grid& grid = frmPosi.flgdData;
  GridTable* table = nullptr;
};

}  // namespace tr7
