#include "state/wait.h"

#include "forms/frm_main.h"
#include "forms/timer.h"
#include "platform/doors.h"
#include "platform/event_pump.h"

namespace tr7 {

void TusinWaitMs(int ms) {
  Timer timer(ms, true);
  timer.Tick = [&timer] { timer.Stop(); };
  while (timer.Enabled) Pump();
}

}  // namespace tr7
