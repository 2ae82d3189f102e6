#pragma once

namespace tr7 {

// The cell flags that check and verification share (`SyogoCell`, `SyogoCount`).

/// Takes all flags back.
void ClearSyogo();

/// Flags a cell, and by column 28 its line.
void FlagCell(int col, int number);

/// Column 28's mark: some cell of the line is flagged.
bool LineIsFlagged(int number);
bool CellIsFlagged(int col, int number);

}  // namespace tr7
