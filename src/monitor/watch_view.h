#pragma once

namespace tr7 {

/// Fields and buttons of the lists: add and delete, another item in a row's place, another order.
void InstallWatchPage();
/// Which of them are on: while the user edits, and no flow runs.
void ShowWatchButtons();
/// The lists as they were left, and the first choice of each pane.
void LoadWatchPage();

}  // namespace tr7
