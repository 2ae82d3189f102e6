#pragma once

#include "prog/prog_store.h"

namespace tr7 {

// Editing of the listing.

/// True when whole lines are selected: by the number column, or over all data columns.
bool IsWholeLine(const Grid& listing);

/// Commits an edited cell: trims `text`; 0, or 1 with a beep where a command is none of the list.
int SetDataForFlexProg(ProgView& view, int row, int col, std::string& text);

/// Keys that a column's edit takes, and how they are folded: the character to put in, 0 to drop it.
/// Characters beyond ASCII pass in the comment alone.
char ProgKey(int col, char typed);

/// 1, after telling so, when the listing has no step at all.
int Check_flgdProgLineNo(const ProgView& view);

/// Deletes steps without any text, the first one apart. The cursor follows.
int Check_NullLineAndDelete(ProgView& view);

/// Enter: to the next column; behind the last one to the next step, which is added at the end.
void ProgEnterKey(ProgView& view);
/// Delete empties the current cell, a command's too, which an edit may not.
void ProgDeleteKey(ProgView& view);
/// The down arrow on the last step adds one. True: it has.
bool ProgDownKey(ProgView& view);

void cmdInsLineProg_Click(ProgView& view);
void cmdDelLineProg_Click(ProgView& view);

}  // namespace tr7
