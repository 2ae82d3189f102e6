#pragma once

namespace tr7 {

/// Copies whole lines, or a part of one column, as the clipboard's text: tabs between cells, CR
/// between rows.
void cmdPosiCopy_Click();

/// Pastes the clipboard's lines from the current line on, or its column from the selected cell on.
/// Each cell goes through the rule of the mode; one that is refused keeps its text. Lines beyond
/// the last are not created. A single row pastes into every selected line.
void cmdPosiPaste_Click();

/// The paste by the clipboard's shape: message 336 when it is neither lines nor a column.
void PosiDataPaste();

}  // namespace tr7
