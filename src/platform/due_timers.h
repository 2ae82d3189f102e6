#pragma once

#include <cstdint>
#include <optional>

namespace tr7 {

// What every event pump does with the timers.

/// Serves each timer that is due once, in table order. True when one ticked.
bool ServeDueTimers();
/// When the next timer is due or the serial port next has something to say; nothing when never.
std::optional<std::int64_t> NextDueUs();

}  // namespace tr7
