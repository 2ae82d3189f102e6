#pragma once

#include <string>

namespace tr7 {

/// The input hint of a cell's column: its range and unit; empty for column 0.
std::string PosiHint(int col);

/// The range of a column in use, also of one that the mode does not show.
std::string PosiRangeText(int col);

/// Why a cell of the column refused a text: its range, or what a comment cannot hold.
std::string RefusalText(int col);

/// A note about what was just typed: it stands in front of the hint until the selection has moved
/// on from the next cell.
void TellNote(const std::string& note);
/// Such a note of what an accepted cell has made of the text that was typed.
void TellRounded(const std::string& typed, const std::string& shown);

/// Writes the hint of the grid's current cell to the frame's first status panel.
void PosiHintHyoji();

}  // namespace tr7
