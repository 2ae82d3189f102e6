#pragma once

#include "prog/prog_store.h"

namespace tr7 {

/// The checks that stand before a check, a save and a write: the names, a step at all, no empty
/// steps, every cell read into `ProgDA`. 0; 1 after the user has been told.
int PrepareProg(ProgView& view);

/// The whole check. 0 it passed; 1 it did not or could not be judged, which has been told.
/// `SilentTail` leaves out the request to mend it.
int ProgDataCheck(ProgView& view, bool SilentTail);

/// The same for what sends nothing faulty: errors stay on show in the pane, and `ProgSyntaxNg`
/// until the pane is closed or a check of the user's finds none.
int ProgDataCheckOrPane(ProgView& view, bool SilentTail);

/// `cmdProgCheck`.
void programCheck(ProgView& view);

}  // namespace tr7
