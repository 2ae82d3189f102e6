#pragma once

namespace tr7 {

// Whole lines of the grid. Each change renumbers the lines below, sets the loaded range,
// `PosiCount` and `PosiChanged`; the table itself follows at the next commit.

/// Inserts a line of defaults above the current one; nothing at 999 positions.
void cmdInsertLine_Click();

/// Removes the selected lines.
void cmdDeleteLine_Click();

/// Adds a line of defaults behind the last one. False when position 999 exists.
bool AppendLine();

/// Numbers, range and change flag after lines have come or gone.
void PosiLinesChanged();

/// Fills a grid row with the defaults of a new table.
void InsertLineDefaults(int row);

}  // namespace tr7
