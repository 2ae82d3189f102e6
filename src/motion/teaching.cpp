#include "motion/teaching.h"

#include "device/ct_device.h"
#include "forms/frm_posi.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "link/status_commands.h"
#include "link/task_commands.h"
#include "motion/home_state.h"
#include "motion/homing.h"
#include "motion/jog.h"
#include "motion/motion_log.h"
#include "motion/motion_now.h"
#include "motion/motion_tabs.h"
#include "motion/present_pos.h"
#include "motion/running_flow.h"
#include "motion/teach_line.h"
#include "motion/teaching_session.h"
#include "platform/doors.h"
#include "posi/posi_check.h"
#include "posi/posi_grid_fill.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/held_axes.h"

namespace tr7 {
namespace {

constexpr int kMsgProgramRuns = 451, kMsgStopPrograms = 452, kMsgLineFailed = 377,
              kMsgMayBeHeld = 6363, kMsgLost = 5509;
// The control mode of teaching: an axis's digit 1 holds it, so that no input moves it, and 2
// switches its servo off. One frame carries one of the two: beside a servo that is off the others
// are plain.
constexpr int kTeaching = 1, kHeld = 1, kServoOff = 2;
constexpr int kOn = 2225, kOff = 2226;
constexpr int kActionStart = 5418, kActionEnd = 5419, kActionDirect = 5420, kActionServo = 5421;
constexpr int kTaken = 5411, kNotTaken = 5412, kNotSent = 5413;

int ServoMask() {
  int mask = 0;
  for (const int axis : AxesInUse()) mask |= frmPosi.Teach.ServoOn[axis] ? 1 << axis : 0;
  return mask;
}

/// `mask`: the axes whose servos are on.
int SendServos(int mask) {
  const int off = AxesInUseMask() & ~mask;
  return off != 0 ? CtControlModeSet(kServoOff, kTeaching, off)
                  : CtControlModeSet(kHeld, kTeaching, kAllAxes);
}

void ShowServoBoxes() {
  PosiTeaching& f = frmPosi.Teach;
  for (int axis = 0; axis < kAxes; ++axis) {
    f.chkSarvoOn[axis].Value = f.ServoOn[axis];
    f.chkSarvoOn[axis].Caption = Text(f.ServoOn[axis] ? MsgId(kOn) : MsgId(kOff));
  }
}

/// False after the user has been told: a program runs, or nobody knows.
bool NoProgramRuns() {
  if (!AppState.CtMode) return true;
  const int tasks = ReadTaskCountFromCt();
  if (tasks > 0) {
    Tell(kMsgProgramRuns);
    Tell(kMsgStopPrograms);
  }
  return tasks == 0;
}

void ClearTeaching() {
  PosiTeaching& f = frmPosi.Teach;
  ClearJog();
  f.timerTeaching.Stop();
  f.DirectTeaching = f.TickWaits = False;
  f.chkDirectTeach.Value = false;
  for (int axis = 0; axis < kAxes; ++axis) f.ServoOn[axis] = f.SarvoEnable[axis] = False;
}

/// What is held still from before is given back ahead of the teaching mode: a release behind it
/// would take that back too. False after the user has been told.
bool NothingIsHeld() { return !AppState.AxesMayBeHeld || CtControlModeSet(0, 0, 0) == 0; }

bool EnterTeachingMode() {
  if (SendServos(kAllAxes) == 0) return true;
  Tell(kMsgLineFailed);
  return false;
}

/// A start that came to none gives the axes back to the controller: at the next connection where
/// the line has just failed.
void LeaveTeachingMode() {
  const bool line_serves = !AppState.Offline && !AppState.AlarmOn;
  if (line_serves && CtControlModeSet(0, 0, 0) == 0) return;
  AxesStayHeld();
  Tell(kMsgMayBeHeld);
}

bool ReadWhereItStands() {
  if (ReadCtModeAndAxis() != 0 || ReadHomeStateFromCt() != 0) return false;
  if (!AppState.AllHomed) AppState.HomeDone = False;
  if (!AppState.HomeDone && GentenHukki() != 0) return false;
  if (ReadnDisp_PresentPos() != 0) return false;
  return ReadCtDeviceFromCt() == 0;  // the axes' data
}

/// The steps to a session. False: there is none, and the user knows why.
bool StartTeaching() {
  {
    const KeepPlace place;
    if (!PosiDataCheckAll()) return false;
  }
  const NamedFlow starting(MoveFlow::Teach);
  if (!ConnectOrOpenPort() || StopAsked() || !NoProgramRuns() || !OpenPortOrTell()) return false;
  if (StopAsked() || !NothingIsHeld()) return false;
  ClearTeaching();
  const bool entered = EnterTeachingMode();
  if (entered && ReadWhereItStands() && !StopAsked()) return true;
  const bool refused = !entered && AppState.AlarmOn;
  if (!refused) LeaveTeachingMode();
  return false;
}

void LeaveSession() {
  TeachingSession.lost = false;
  AppState.TeachingNow = False;
  TusinPortClose();
  TeachingSession.commands_off.reset();
  ShowMotionTabs();
}

}  // namespace

void cmdJOGST_Click() {
  if (AppState.TeachingNow) return;
  PosiTeaching& f = frmPosi.Teach;
  TeachingSession.commands_off.emplace();
  bool started;
  {
    const BusyScope busy;
    started = StartTeaching();
  }
  LogMotion(kActionStart, "", started ? MsgId(kTaken) : MsgId(kNotTaken));
  if (!started) {
    TusinPortClose();
    TeachingSession.commands_off.reset();
    return;
  }
  AppState.TeachingNow = True;
  f.JogArmed = f.JogButtonsAreOn = True;
  for (const int axis : AxesInUse()) f.SarvoEnable[axis] = f.ServoOn[axis] = True;
  ShowServoBoxes();
  frmPosi.flgdData.Enabled = true;
  ShowTeachLine();
  ShowMotionTabs();
}

void cmdJOGend_Click() {
  if (!AppState.TeachingNow) return;
  // Its key may come while a jog is held: the axis is stopped while the session still knows of it.
  LetGoOfHeldButton();
  if (!AppState.TeachingNow) return;  // its stop has found the session lost
  // What answers on a line that was lost may be another controller: the next connection looks.
  const bool line_was_lost = AppState.Offline;
  ClearTeaching();
  ShowServoBoxes();
  // Nothing is sent into an alarm: the next connection comes after it.
  const bool normal = !AppState.AlarmOn && CtControlModeSet(0, 0, 0) == 0;
  LogMotion(kActionEnd, "", normal ? MsgId(kTaken) : MsgId(kNotTaken));
  if (!normal) {
    AxesStayHeld();
    MsgBox(WithReason(Text(kMsgLineFailed), Text(kMsgMayBeHeld)));
  }
  if (line_was_lost) EndSession();
  LeaveSession();
}

void EndTeachingAsLost() {
  ClearTeaching();
  ShowServoBoxes();
  // A controller that was off has forgotten the teaching mode, any other is in it still.
  AppState.AxesMayBeHeld = True;
  LogMotion(kActionEnd, "", kNotSent);
  LeaveSession();
  Tell(kMsgLost);
}

int ServoApplyToCt(int on) {
  if (on != AxesInUseMask()) AppState.HomeDone = False;
  ShowHomeState();
  const int sent = SendServos(on);
  LogMotion(kActionServo, "", sent == 0 ? MsgId(kTaken) : MsgId(kNotTaken));
  if (sent != 0) Tell(kMsgLineFailed);
  return sent;
}

void chkSarvoOn_Click(int axis) {
  PosiTeaching& f = frmPosi.Teach;
  const bool on = f.chkSarvoOn[axis].Value;
  const bool sends = !AppState.Offline && !f.DirectTeaching;
  // The box shows what holds until the controller has answered, and no axis is moved meanwhile.
  ShowServoBoxes();
  JogButtonsOff();
  const int others = ServoMask() & ~(1 << axis);
  if (!sends || ServoApplyToCt(on ? others | 1 << axis : others) == 0) f.ServoOn[axis] = on;
  ShowServoBoxes();
  JogButtonsOn();
}

namespace {

/// All servos off: the user pushes the slides, and the read-outs follow.
void DirectTeachStart() {
  if (ServoApplyToCt(0) != 0 || !AppState.TeachingNow) return;
  frmPosi.Teach.DirectTeaching = True;
  frmPosi.Teach.timerTeaching.Start();
}

void DirectTeachEnd() {
  frmPosi.Teach.timerTeaching.Stop();
  frmPosi.Teach.DirectTeaching = frmPosi.Teach.TickWaits = False;
  if (!AppState.Offline)
    static_cast<void>(ServoApplyToCt(ServoMask()));  // its failure has been told
}

}  // namespace

void chkDirectTeach_Click() {
  PosiTeaching& f = frmPosi.Teach;
  const bool on = f.chkDirectTeach.Value;
  f.chkDirectTeach.Value = f.DirectTeaching;  // until the controller has answered
  JogButtonsOff();
  on ? DirectTeachStart() : DirectTeachEnd();
  f.chkDirectTeach.Value = f.DirectTeaching;
  LogMotion(kActionDirect, "", f.DirectTeaching ? MsgId(kOn) : MsgId(kOff));
  JogButtonsOn();
}

void timerTeaching_Tick() {
  // A tick while something else has the line is none; no monitor's poll begins before the next.
  frmPosi.Teach.TickWaits = !TusinQueue.IsEmpty();
  if (frmPosi.Teach.TickWaits) return;
  if (!AppState.Offline && ReadnDisp_PresentPos() == 0) return;
  frmPosi.Teach.timerTeaching.Stop();
  ShowMotionTabs();
}

}  // namespace tr7
