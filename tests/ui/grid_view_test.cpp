// What the position grid shows where, and what it keeps over a command.

#include <QPushButton>
#include <QScrollBar>

#include "tests/ui/grid_screen.h"

namespace tr7 {
namespace {

TEST_F(GridTest, SaveKeepsTheCellAndGivesTheFocusBack) {
  user.on_file = [this] { return folder.filePath("saved.qvd"); };
  GoTo(kFirst + 3, kPosi);
  auto* save = qobject_cast<QPushButton*>(desktop.forms.WidgetOf(frmPosi.cmdPosiSave));
  save->setFocus();
  save->click();
  Settle();
  EXPECT_EQ(frmPosi.Caption.find("saved") != std::string::npos, true) << frmPosi.Caption;
  EXPECT_EQ(table->window()->focusWidget(), table);
  EXPECT_EQ(Current(), At(kFirst + 3, kPosi));
}

}  // namespace
}  // namespace tr7
