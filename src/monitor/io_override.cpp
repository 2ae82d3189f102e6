#include "monitor/io_override.h"

#include "forms/frm_io_check_fg.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "monitor/io_show.h"
#include "monitor/io_state.h"
#include "monitor/poll.h"
#include "motion/motion_now.h"
#include "session/open_port.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kTakenBack = 7313, kMayStand = 7314;

bool IsDue() {
  if (AppState.TeachingNow) return false;
  return IoMonitor.IgnorePending || IoMonitor.ModesSent < 0 ||
         (IoMonitor.OverrideOn && IoMonitor.ModesSent != AppState.ControlModesSent);
}

bool SendRelease() {
  const bool in_use = AppState.ComBusy || MotionNow.Kind != Motion::None;
  if (AppState.Offline || AppState.Closing || in_use) return false;
  const PortClosedAfter port_closed;
  return CtControlModeSet(0, 0, kAllAxes) == 0;
}

}  // namespace

TusinOutcome TellFailed(const TusinFailure& failure) {
  if (failure.end == TusinEnd::Withdrawn) return TusinOutcome::Withdrawn;
  TellTakenFailure(failure);
  TusinAbort();
  return TusinOutcome::Failed;
}

TusinOutcome SendOverride() {
  if (!IsDue()) return TusinOutcome::Good;
  const bool on = frmIOCheckFG.chkIgnore.Value;
  if (on) IoMonitor.OverrideOn = True;  // also where only the answer is lost
  ShowOverride();
  // Of our own frame alone: a flow that runs within the wait sends others, which undo it.
  const std::int32_t sent = AppState.ControlModesSent + 1;
  TusinFailure failure{TusinEnd::Withdrawn, 0, {}};
  if (CtControlModeSet(on ? 1 : 0, 0, kAllAxes, &failure) != 0) return TellFailed(failure);
  // Within the wait the monitor may have ended, and taken it back.
  if (on && !IoMonitor.OverrideOn) return TusinOutcome::Withdrawn;
  IoMonitor.OverrideOn = on;
  IoMonitor.IgnorePending = frmIOCheckFG.chkIgnore.Value != on;
  IoMonitor.ModesSent = sent;
  ShowOverride();
  return TusinOutcome::Good;
}

void TakeBackOverride() {
  if (!IoMonitor.OverrideOn) return;
  frmIOCheckFG.chkIgnore.Value = false;
  IoMonitor.IgnorePending = IoMonitor.OverrideOn = False;
  ShowOverride();
  // The end of a teaching session gives all axes back.
  if ((AppState.TeachingNow && !AppState.Offline) || SendRelease()) return TellDone(kTakenBack);
  AppState.AxesMayBeHeld = True;
  SettleLostSession();
  Tell(kMayStand);
}

}  // namespace tr7
