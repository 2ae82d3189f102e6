#include "para/para_after_device.h"

#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "para/param_set.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kDelayMs = 1000;

void Timer2Tick() {
  // A flow that still holds the commands is not cut in two: the next tick comes in a second.
  if (AppState.CommandsOffDepth > 0) return;
  frmMain.Timer2.Stop();
  if (!ParaFlags.OpenParaAfterDevice) return;
  ParaFlags.OpenParaAfterDevice = False;
  if (frmParameta2.Visible) {
    doors.forms->BringToFront(frmParameta2);
  } else {
    ShowViewModal(frmParameta2);
  }
}

}  // namespace

void OpenParaAfterDevice() {
  ParaFlags.OpenParaAfterDevice = True;
  frmMain.Timer2.Start(kDelayMs);
}

void InstallParaAfterDevice() { frmMain.Timer2.Tick = Timer2Tick; }

}  // namespace tr7
