#pragma once

#include <bitset>
#include <string>

#include "posi/posi_table.h"

namespace tr7 {

/// Checks every grid line from `PosiFromNo` to `PosiToNo`. 0: all are good, and the grid's texts
/// stand in the table (an empty grid is good, and then there is no table). 1: some are bad, the
/// user has seen which, and the table is as it was. The grid's current cell goes to the corner.
int PosiDataCheck3();

/// The same for the program mode's layout, under its own name; `PosiDataCheck3` serves both.
int PosiDataCheck3Prg();

/// The same over the whole loaded range, which becomes the range of the operation: for whoever
/// lets the user narrow it afterwards or not at all. True: all is good.
[[nodiscard]] bool PosiDataCheckAll();

/// The loaded lines that the check would refuse; nothing is shown, and the table is as it was. None
/// where an axis has no device to convert by: the check tells that first.
std::bitset<kPosiSlots> RefusedLines();

/// Which axis in use has no device to convert by, in the user's language; empty: none.
std::string ConversionTrouble();
/// False, after telling so, when there is such an axis.
bool AllAxesConvert();

/// 0 when there is a table; 1, after telling so, when there is none.
int Check_flgdLineNo();

}  // namespace tr7
