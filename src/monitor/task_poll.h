#pragma once

#include "monitor/poll.h"

namespace tr7 {

/// One poll: what a button has left goes out first, then what runs is read. Where it is done,
/// `TaskMonitor.Seen` holds it. The link has told the user of a failure.
[[nodiscard]] PollEnd NormalTimerProcessing();

}  // namespace tr7
