#include "core/wait.h"

#include "platform/event_pump.h"
#include "platform/timer.h"

namespace tr7 {

void TusinWaitMs(int ms) {
  Timer timer(ms, true);
  timer.Tick = [&timer] { timer.Stop(); };
  while (timer.Enabled) Pump();
}

}  // namespace tr7
