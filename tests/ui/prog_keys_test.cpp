// A listing under real keys and a real mouse.

#include <QListWidget>

#include "prog/prog_listing.h"
#include "prog/prog_view.h"
#include "tests/ui/ui_test.h"
#include "ui/grid_cell_painter.h"
#include "ui/grid_table.h"

namespace tr7 {
namespace {

class ProgKeysTest : public UiTest {
 protected:
  /// A new view of "JUMP 7" and "LB 7", at this cell.
  void Show(int row, int col) {
    view = &NewProgView();
    ShowView(*view);
    view->flgdProg.SetRows(3);
    PutCells(view->flgdProg, 1, {{"JUMP", "7"}});
    PutCells(view->flgdProg, 2, {{"LB", "7"}});
    view->flgdProg.SelectCell(row, col);
    Settle();
    table = qobject_cast<GridTable*>(desktop.forms.WidgetOf(view->flgdProg));
    Activate(*table);
    table->setFocus();
  }
  void Press(const char* keys) { PressKeys(*table, keys); }
  /// "JUMP 7/LB 7 @1,2": first operands and the cursor.
  std::string Seen() const {
    const Grid& listing = view->flgdProg;
    std::string seen;
    for (int row = 1; row < listing.Rows(); ++row) {
      seen += listing.Text(row, kProgCommand) + " " + listing.Text(row, kProgOperand1) + "/";
    }
    return seen + "@" + std::to_string(listing.Row) + "," + std::to_string(listing.Col) +
           (view->List1.Visible ? " list" : "");
  }

  ProgView* view = nullptr;
  GridTable* table = nullptr;
};

TEST_F(ProgKeysTest, TheKeysOfTheListing) {
  StartOffline(true);
  const struct {
    int row, col;
    const char *keys, *seen;
  } cases[] = {{1, 1, "m v $ p Return", "MVP 7/LB 7/@1,2"},
               {1, 2, "i f 1 x Return", "JUMP If1/LB 7/@1,3"},
               {1, 2, "x Return", "JUMP 7/LB 7/@1,3"},  // nothing of it is taken: no edit
               {1, 2, "Del", "JUMP /LB 7/@1,2"},
               {1, 1, "Del Ctrl+Z", "JUMP 7/LB 7/@1,1"},
               {1, 2, "9 Return Ctrl+Z Ctrl+Y", "JUMP 9/LB 7/@1,3"},
               {2, 2, "Down", "JUMP 7/LB 7/ /@3,2"},
               {2, 6, "Return", "JUMP 7/LB 7/ /@3,1"},
               {1, 3, "Shift+Tab", "JUMP 7/LB 7/@1,2"},
               {1, 1, "F12", "JUMP 7/LB 7/@2,2"},
               {1, 1, "Ctrl+Space", "JUMP 7/LB 7/@1,1 list"},
               {1, 2, "Ctrl+Space", "JUMP 7/LB 7/@1,2"},
               {1, 1, "Ctrl+Space Down Return", "CALL 7/LB 7/@1,1"},
               {1, 1, "Ctrl+Space a c Return", "ACC 7/LB 7/@1,1"},
               {1, 1, "a Ctrl+Space Esc", "JUMP 7/LB 7/@1,1"}};
  for (const auto& row : cases) {
    Show(row.row, row.col);
    Press(row.keys);
    EXPECT_EQ(Seen(), row.seen) << row.keys;
  }
}

TEST_F(ProgKeysTest, TheMouseFollowsAJumpAndPicksACommand) {
  StartOffline(true);
  Show(1, 1);
  QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, table->CellRect(1, 2).center());
  EXPECT_EQ(Seen(), "JUMP 7/LB 7/@2,2");
  view->flgdProg.SelectCell(1, 1);
  Settle();
  Press("a");
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->CellRect(1, 2).center());
  EXPECT_TRUE(table->IsEditing()) << "a refused command stays";
  Press("Esc");
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                    ListArrowIn(table->CellRect(1, 1)).center());
  Settle();
  auto* list = qobject_cast<QListWidget*>(desktop.forms.WidgetOf(view->List1));
  ASSERT_TRUE(list->isVisible());
  const QRect entry = list->visualItemRect(list->currentItem());
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    entry.center() + QPoint(0, entry.height()));
  EXPECT_EQ(Seen(), "CALL 7/LB 7/@1,1");
}

}  // namespace
}  // namespace tr7
