#pragma once

namespace tr7 {

void cmdJOGST_Click();
void cmdJOGend_Click();
/// The way out of a session that was lost, which the user is told.
void EndTeachingAsLost();
void chkSarvoOn_Click(int axis);
void chkDirectTeach_Click();
void timerTeaching_Tick();

/// Sends the servo bits: `on`, those that are on. 0; 1 after the user has been told.
int ServoApplyToCt(int on);

/// Takes the present position into the current line of the table, and goes on to the next one.
void cmdJOGWrite_Click();
void cmdJOGWriteNext_Click();

}  // namespace tr7
