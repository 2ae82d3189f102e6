#pragma once

namespace tr7 {

// The flows of the move tab. Nothing in the table changes.

/// Up to 16 positions from a list.
void cmdSelectMove_Click();
/// A range of positions, or one of them.
void cmdMove_Click();
/// The positions of a group.
void cmdGrpMove_Click();

// Their stops and pauses set a flag: the running flow sees it at the end of its step, and a wait
// ends at once.
void cmdTmpStop_Click();
void cmdStop_Click();
void cmdTempStop2_Click();
void cmdStop2_Click();
void cmdGrpMoveStop_Click();

// Where nothing runs, the stop of a flow that is paused gives up the place that it has kept. The
// place at which its next start goes on, as a row from 1 or a position number; 0: at the beginning.
int SelectPlace();
int ContinuePlace();

/// A pause ends with its session: its place is none of another controller's.
void ForgetPauses();

/// Sliders, up-downs, labels and texts of the tab follow one another.
void InstallMoveControls();
/// The numbers beside the sliders of the range.
void ShowMoveRange();

}  // namespace tr7
