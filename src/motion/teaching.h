#pragma once

#include <optional>

#include "base/axes.h"
#include "state/busy_scope.h"

namespace tr7 {

/// What a teaching session holds from its start to its end.
struct TeachingSessionRecord {
  std::optional<CommandsOff> commands_off;
};
extern TeachingSessionRecord TeachingSession;

void cmdJOGST_Click();
void cmdJOGend_Click();
void chkSarvoOn_Click(int axis);
void chkDirectTeach_Click();
void timerTeaching_Tick();

/// Sends the servo bits: `on`, those that are on. 0; 1 after the user has been told.
int ServoApplyToCt(int on);

/// Takes the present position into the current line of the table, and goes on to the next one.
void cmdJOGWrite_Click();
void cmdJOGWriteNext_Click();

}  // namespace tr7
