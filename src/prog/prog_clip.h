#pragma once

#include "prog/prog_store.h"

namespace tr7 {

/// Copies the selected lines as the clipboard's text: tabs between the six cells, CR between lines.
void PrgDataLineCopy(ProgView& view);

/// True when the clipboard holds lines of a program.
bool ClipHoldsProgLines();

/// Puts the clipboard's lines over those from the current one on; the listing grows up to the
/// program's limit. A command that the list lacks keeps the old text.
void ProgDataLinePaste(ProgView& view);

/// The same for cells: the selected block, and a text of any width from the current cell on.
void ProgCellsCopy(ProgView& view);
void ProgCellsPaste(ProgView& view);

}  // namespace tr7
