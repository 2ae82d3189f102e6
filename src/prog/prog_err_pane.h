#pragma once

#include "prog/prog_store.h"

namespace tr7 {

// The error list under the listing.

void InitSize_FGPrgErr(Grid& errors);
void SetStr_FGProgErr(Grid& errors);
/// Writes the first ten records; rows behind them are empty.
void ProgErrShow(ProgView& view);
void ProgErrClear(Grid& errors);

/// Shows and hides it; the view grows and shrinks by its height. A maximised or minimised view
/// shows no pane.
void ProgErrPaneOpen(ProgView& view);
void ProgErrPaneClose(ProgView& view);

}  // namespace tr7
