#pragma once

#include "forms/frm_io_check_fg.h"
#include "link/tusin_wait.h"
#include "monitor/watch_lists.h"

namespace tr7 {

WatchPane& PaneOf(WatchKind kind);

/// Writes a list into its grid.
void ShowWatchList(WatchKind kind);
/// The end of a batch of changes of rows: the grid is drawn again.
void FlagFG_HighSyoriEnd();
void HensuFG_HighSyoriEnd();
void PosHensuFG_HighSyoriEnd();

/// Within a poll: reads the rows of the lists that are switched on, one after the other, and shows
/// what has changed. Nothing more is sent where `goes_on` says no; the user may edit the lists
/// meanwhile.
TusinOutcome RefreshWatchLists(bool (*goes_on)());
/// Its rows are read at each poll: it is switched on, and the lists are not being edited.
bool WatchListIsRead(WatchKind kind);
/// No value is known any more: the rows show "X".
void ForgetShownWatchValues();
/// The grids' greys are others now.
void TouchWatchLists();
/// Titles, widths, lamps.
void WireWatchGrids();
void ShowWatchTitles();

}  // namespace tr7
