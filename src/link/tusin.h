#pragma once

#include <cstdint>
#include <string>

#include "base/bool16.h"

namespace tr7 {

/// One request and its reply, with retries, re-synchronisation and the user's message on failure.
/// Called from the request timer only. `reply_length` counts CR LF. The outcome goes to
/// `TusinResult`; 0 success, 1 failure.
int TusinExchange(const std::string& command, int reply_length, const std::string& data,
                  std::int16_t id, Bool16 show_message);

/// The request timer: the priority queue is drained, then one ordinary request is served.
void TimerTusinTick();
/// True when a tick of the request timer would serve something.
bool TimerTusinHasWork();

/// The receive poll: takes what the port has received and completes the line.
void TimerJusinTick();
bool TimerJusinHasWork();

/// One shot per send: the controller has not answered in time.
void TimerTimeoutTick();

}  // namespace tr7
