#pragma once

#include <deque>
#include <string>

#include "base/msg_id.h"

namespace tr7 {

/// One thing that was done to the axes by this tool, or a hand on it.
struct MotionEntry {
  std::string time;     ///< local, "16:05:33"
  std::string action;   ///< in the user's language
  std::string sent;     ///< the frame without CR LF; empty: none
  std::string outcome;  ///< in the user's language
};

/// The latest entries, the oldest first: whoever asks why an axis moved finds it here.
inline constexpr std::size_t kMotionLogEntries = 500;
extern std::deque<MotionEntry> MotionLog;

void LogMotion(MsgId action, const std::string& sent, MsgId outcome);

}  // namespace tr7
