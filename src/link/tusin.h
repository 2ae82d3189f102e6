#pragma once

#include <cstdint>
#include <string>

#include "base/bool16.h"
#include "link/request_queue.h"

namespace tr7 {

/// One request and its reply, with retries and re-synchronisation. It shows no box and leaves port
/// and state alone, but for opening the port: what follows from its end is the tick's and the
/// waiter's.
Exchange TusinExchange(TusinRequest& request);

/// The stop of axes that is on the line unanswered is sent once more, at once, beside the sends
/// that its exchange has: 300 ms behind the last at the earliest. True: it has been.
bool TusinStopAgain();

/// The request timer: brings the next request to the line, goes on with its exchange, and settles
/// what holds once it is over.
void TimerTusinTick();
/// True when a tick of the request timer would get anything on.
bool TimerTusinHasWork();

/// The receive poll: takes what the port has received and completes the line. An error reply is
/// decoded here, once, whoever waits for it.
void TimerJusinTick();
bool TimerJusinHasWork();

/// One shot of the exchange: the controller has not answered in time, or a pause is over.
void TimerTimeoutTick();

}  // namespace tr7
