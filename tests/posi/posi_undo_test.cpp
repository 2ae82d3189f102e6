#include "posi/posi_undo.h"

#include <vector>

#include "forms/frm_main.h"
#include "posi/posi_check.h"
#include "posi/posi_clipboard.h"
#include "posi/posi_edits.h"
#include "posi/posi_lines.h"
#include "tests/fleet/random.h"
#include "tests/support/posi_table_test.h"

namespace tr7 {
namespace {

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

TEST_F(PosiUndoTest, ANewEditEndsTheWayForwardAndATableShownAnewBoth) {
  ShowTable(1, 3);
  Type(1, kVel, "10");
  PosiUndoClick();
  Type(2, kVel, "20");
  EXPECT_TRUE(PosiUndo.undone.empty() && frmPosi.Edit.Undo && !frmPosi.Edit.Redo);
  ShowTable(1, 3);
  EXPECT_TRUE(PosiUndo.done.empty());
}

}  // namespace
}  // namespace tr7
