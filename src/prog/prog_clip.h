#pragma once

#include <string>

#include "prog/prog_store.h"

namespace tr7 {

/// The lines that a program view has copied last: what tells them from any other text.
struct ProgLineClipRecord {
  std::string Text;
};
extern ProgLineClipRecord ProgLineClip;

/// Copies the selected lines as the clipboard's text: tabs between the six cells, CR between lines.
void PrgDataLineCopy(ProgView& view);

/// True when the clipboard holds lines of a program: those that a program view has copied, or lines
/// of the same form from elsewhere, each with a command of the list or wholly empty.
bool ClipHoldsProgLines();

/// Inserts the clipboard's lines above the selected one, as one edit, as far as the program's limit
/// lets them; of the others the user is told. The one empty line of a new listing makes room for
/// them. A command that the list lacks stays empty.
void ProgDataLinePaste(ProgView& view);

/// The same for cells: the selected block, and a text of any width over the cells from the current
/// one on. No line is added, and a command that the list lacks keeps the old text.
void ProgCellsCopy(ProgView& view);
void ProgCellsPaste(ProgView& view);

}  // namespace tr7
