#pragma once

#include "forms/frm_syogo_kekka.h"
#include "posi/device_change.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_clipboard.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_lines.h"
#include "tests/support/state_test.h"

namespace tr7 {

/// A position table on show, on four equal devices: lead 6 mm, 800 pulses a turn, stroke 100 mm,
/// which makes 13334 pulses, 100.005 mm and 75 mm/s.
class PosiTableTest : public StateTest {
 protected:
  PosiTableTest();
  /// A new table of positions first to last in the layout and unit asked for.
  void ShowTable(int first, int last, bool program_mode = false, bool mm = false);
  /// What a user does to one cell: 0 accepted, 1 refused.
  int Type(int number, int col, const std::string& text);
  const std::string& Cell(int number, int col) const;
  /// Puts a text into the grid past the cell's rule, as an old file or an empty cell may have it.
  void Put(int number, int col, const std::string& text);
  void Select(int number, int col, int number_end, int col_end);
  /// The stored value of a column.
  double Stored(int col, int number) const;
};

}  // namespace tr7
