#pragma once

#include <string>

#include "prog/prog_store.h"

namespace tr7 {

/// Ctrl and the space bar at a command cell: shows `List1` with the names of the list, the cell's
/// own chosen. False in any other column.
bool ShowCommandList(ProgView& view);

/// Leaves the names in the list that begin with what is typed, in either case; all for an empty
/// text.
void FilterCommandList(ProgView& view, const std::string& typed);

/// Writes the chosen name into the cell and hides the list.
void PickCommand(ProgView& view);

void HideCommandList(ProgView& view);

}  // namespace tr7
