#include "motion/teach_line.h"

#include <string>

#include "forms/frm_posi.h"
#include "posi/posi_grid_layout.h"

namespace tr7 {

int TeachRow() {
  const Grid& grid = frmPosi.flgdData;
  return grid.Row >= kPosiHeaderRows && grid.Row < grid.Rows() ? grid.Row : 0;
}

void ShowTeachLine() {
  PosiTeaching& f = frmPosi.Teach;
  const int row = TeachRow();
  f.TeachLineNo = static_cast<std::int16_t>(row > 0 ? PositionOfRow(row) : 0);
  f.lblPosiNo.Caption = f.TeachLineNo > 0 ? std::to_string(f.TeachLineNo) : "-";
}

}  // namespace tr7
