#pragma once

#include <string>

namespace tr7 {

/// Compares `PosiStage` with the table over `PosiFromNo` to `PosiToNo`, without tolerance, and
/// flags what differs. Comments are not compared, nor numbers that
/// the stage does not hold. 0 equal, 1 different.
int PosiDataSyogoProc();

/// The part of the loaded range that the file read last covers, as `SyogoFromNo` and `SyogoToNo`:
/// 0, or 1 when there is none.
int SyogoOverlap();

/// The stage's value of a cell as the grid would show it.
std::string StagedText(int number, int col);

}  // namespace tr7
