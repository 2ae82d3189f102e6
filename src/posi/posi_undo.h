#pragma once

namespace tr7 {

/// Take back the last edit of the lines on show, or the last taking back; nothing where there is
/// none.
void PosiUndoClick();
void PosiRedoClick();

}  // namespace tr7
