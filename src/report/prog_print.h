#pragma once

#include "prog/prog_store.h"

namespace tr7 {

/// `cmdProgPrint`: the listing as it stands, with what the check says of it. Neither listing nor
/// error pane changes.
void PrintProgListing(ProgView& view);

}  // namespace tr7
