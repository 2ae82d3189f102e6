#pragma once

namespace tr7 {

/// What can be shown, with what is shown and the values at the cursors.
void ShowPlotItems();
/// The part of time that is on show, by zoom and pause, and the cursors.
void ShowPlot();

void InstallPlotPage();
/// Nothing is recorded or chosen.
void LoadPlotPage();

}  // namespace tr7
