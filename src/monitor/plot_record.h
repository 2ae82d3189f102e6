#pragma once

namespace tr7 {

/// A list, a name, the mode or the axes are others now: traces come and go with what they are of.
void FollowPlotItems();

/// A poll is done: what it has read is kept, and shown where the plot is not held.
void RecordPlot();
/// No poll tells what comes now.
void RecordPlotGap();

}  // namespace tr7
