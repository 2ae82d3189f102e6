#include "motion/motion_log.h"

#include "platform/doors.h"
#include "state/text.h"

namespace tr7 {

std::deque<MotionEntry> MotionLog;

void LogMotion(MsgId action, const std::string& sent, MsgId outcome) {
  if (MotionLog.size() == kMotionLogEntries) MotionLog.pop_front();
  MotionLog.push_back({doors.pump->TimeOfDay(), Text(action), sent, Text(outcome)});
}

}  // namespace tr7
