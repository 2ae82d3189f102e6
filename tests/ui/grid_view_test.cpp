// What the position grid shows where, and what it keeps over a command.

#include <QPushButton>
#include <QScrollBar>

#include "tests/ui/grid_screen.h"

namespace tr7 {
namespace {

TEST_F(GridTest, GrowingALineSelectionScrollsDownAlone) {
  table->window()->resize(800, 560);
  Settle();
  grid.Select(5, 1, 5, kComment);
  Settle();
  table->horizontalScrollBar()->setValue(40);
  Press("Shift+Down");
  EXPECT_EQ(Corner(), At(6, kComment));
  EXPECT_EQ(table->horizontalScrollBar()->value(), 40);
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

TEST_F(GridTest, SaveKeepsTheCellAndGivesTheFocusBack) {
  user.on_file = [this] { return folder.filePath("saved.qvd"); };
  GoTo(kFirst + 3, kPosi);
  auto* save = qobject_cast<QPushButton*>(desktop.forms.WidgetOf(frmPosi.cmdPosiSave));
  save->setFocus();
  save->click();
  Settle();
  EXPECT_NE(frmPosi.Caption.find("saved"), std::string::npos) << frmPosi.Caption;
  EXPECT_EQ(table->window()->focusWidget(), table);
  EXPECT_EQ(Current(), At(kFirst + 3, kPosi));
}

}  // namespace
}  // namespace tr7
