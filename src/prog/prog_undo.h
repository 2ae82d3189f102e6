#pragma once

#include "prog/prog_store.h"

namespace tr7 {

// Undo and redo of edits in a listing, each view for itself. A load makes a view of its own.

/// Before an edit: what the listing shows can be brought back. What was undone is gone for good.
void RememberForUndo(ProgView& view);

/// A file or the controller holds what the listing shows, and none of what can be brought back.
void ProgIsSaved(ProgView& view);

/// Its file holds another program from now on: nothing holds what the listing shows, nor what can
/// be brought back.
void ProgLosesItsFile(ProgView& view);

/// Take back the last edit, or the last taking back. False: there is none.
bool ProgUndo(ProgView& view);
bool ProgRedo(ProgView& view);

}  // namespace tr7
