#include "state/wait.h"

#include "forms/frm_main.h"
#include "platform/doors.h"

namespace tr7 {

void MmsecTimerTick() {
  frmMain.mmsecTimer.Stop();
  frmMain.MsecElapsed = true;
}

void TusinWaitMs(int ms) {
  frmMain.MsecElapsed = false;
  frmMain.mmsecTimer.Start(ms);
  while (!frmMain.MsecElapsed) Pump();
}

}  // namespace tr7
