#include "posi/syogo_flags.h"

#include "posi/posi_table.h"

namespace tr7 {
namespace {

Bool16& Flag(int col, int number) { return PosiTable.SyogoCell[col][number]; }

}  // namespace

void ClearSyogo() {
  for (auto& column : PosiTable.SyogoCell) column.fill(False);
  PosiTable.SyogoCount = 0;
}

void FlagCell(int col, int number) { Flag(col, number) = Flag(kComment, number) = True; }

bool LineIsFlagged(int number) { return Flag(kComment, number); }
bool CellIsFlagged(int col, int number) { return Flag(col, number); }

}  // namespace tr7
