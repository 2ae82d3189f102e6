#pragma once

namespace tr7 {

/// `cmdReset` and `mnuContAlarmReset`: resets the controller's alarm and goes online again.
void AlarmReset();

}  // namespace tr7
