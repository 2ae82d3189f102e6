#include "steps/held_axes.h"

#include <string>

#include "base/axes.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgMoving = 424;
constexpr int kMsgLineFailed = 377;
constexpr int kMsgMayBeHeld = 6363;

/// True when a frame may still be sent and answered.
bool LineServes() { return !AppState.Offline && !AppState.AlarmOn; }

}  // namespace

bool AxesStandStill() {
  const int rest = ReadAlarmFromCt();
  if (rest == 0) Tell(kMsgMoving);
  return rest == 1;
}

void AxesStayHeld() {
  AppState.AxesMayBeHeld = True;
  TusinPortCloseForce();
  SetOffline();
}

bool HeldAxes::Hold() {
  held_ = true;  // also where only the answer is lost
  if (CtControlModeSet(1, 0, kAllAxes) == 0) return true;
  if (AppState.AlarmOn) {
    // Refused, or an alarm came in the place of the answer: the next connection releases them.
    held_ = false;
    AxesStayHeld();
  }
  Tell(kMsgLineFailed);
  return false;
}

bool HeldAxes::Release() {
  held_ = false;
  if (CtControlModeSet(0, 0, 0) == 0) return true;
  AxesStayHeld();
  MsgBox(WithReason(Text(kMsgLineFailed), Text(kMsgMayBeHeld)));
  return false;
}

void HeldAxes::GiveUp() {
  if (!held_) return;
  held_ = false;
  if (LineServes() && CtControlModeSet(0, 0, 0) == 0) return;
  AxesStayHeld();
  Tell(kMsgMayBeHeld);
}

}  // namespace tr7
