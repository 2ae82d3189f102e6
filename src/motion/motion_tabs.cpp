#include "motion/motion_tabs.h"

#include <array>
#include <initializer_list>
#include <string>

#include "forms/frm_posi.h"
#include "motion/group_range.h"
#include "motion/home_state.h"
#include "motion/motion_now.h"
#include "motion/move_flows.h"
#include "motion/present_pos.h"
#include "motion/teach_line.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kHoldTip = 5287, kNoSessionTip = 5288, kOfflineTip = 5289, kMovingTip = 5290;
constexpr int kAtTheEndTip = 5293, kNoServoTip = 5294, kNoGuardNote = 5286, kEmergencyNote = 5285;
constexpr int kOfRunningTip = 7130, kOfPausedTip = 7131, kBusyTip = 7132, kServoOffTip = 7133,
              kDirectTip = 7134, kLineGoneTip = 7135, kTeachingTip = 7136;
constexpr int kRowWords = 5510;
constexpr int kAxis1 = 220;
constexpr int kMoveTab = 1, kTeachingTab = 2;
constexpr std::array kHelpPages{"positions", "moves", "teaching"};  ///< a tab each

/// Why nothing can be started now; none where it can.
MsgId WhyNot() {
  if (AppState.TeachingNow) return kTeachingTip;
  if (AppState.Offline) return kOfflineTip;
  if (MotionNow.Flow != MoveFlow::None) return kMovingTip;
  return AppState.CommandsOffDepth > 0 ? MsgId(kBusyTip) : MsgId();
}

/// What moves by a hand or by a step is not interfered with from beside it.
bool AxisIsServed() { return MotionNow.Kind != Motion::None || frmPosi.Teach.JogPending; }

/// Why an act of a session cannot begin; none where it can, as far as the line and the other acts
/// go.
MsgId WhyNoAct() {
  if (!AppState.TeachingNow) return kNoSessionTip;
  if (AppState.Offline) return kLineGoneTip;
  return AxisIsServed() || !frmPosi.Teach.JogButtonsAreOn ? MsgId(kBusyTip) : MsgId();
}

void Switch(Control& control, bool on, MsgId why_not) {
  control.Enabled = on;
  control.ToolTip = on || !why_not ? std::string() : Text(why_not);
}

void ShowReadout() {
  PosiReadout& r = frmPosi.Readout;
  for (int axis = 0; axis < kAxes; ++axis) {
    const bool in_use = r.lblPosiUnit.Visible && !AppState.AxisMuko[axis];
    r.lblAxisName[axis].Caption = Text(MsgId::At(kAxis1, axis));
    r.lblAxisName[axis].Visible = r.lblPosi[axis].Visible = r.lblStroke[axis].Visible = in_use;
  }
  r.lblKanryoiti.Visible = false;
  ShowPresentPos();
  ShowHomeState();
}

/// Off while a flow runs, which reads them anew step by step: rows and numbers, repeat, macro and
/// wait alike; the group alone is read at the start. The end of a range is left to the user: how
/// far it goes may be settled while it goes.
void ShowMoveSettings() {
  PosiMoveTest& f = frmPosi.Move;
  const bool idle = MotionNow.Flow == MoveFlow::None;
  for (Control* setting : std::initializer_list<Control*>{
           &f.flgdProgram, &f.chkRepeat, &f.chkNoSqMcr1, &f.chkTimerUse, &f.txtTimer,
           &f.optMoveWay[0], &f.optMoveWay[1], &f.sldrStartPosiNo, &f.updownStartPosiNo,
           &f.chkRepeat2, &f.chkNoSqMcr2, &f.chkTimerUse2, &f.txtTimer2, &f.sldrGrpNo}) {
    Switch(*setting, idle, kMovingTip);
  }
  const bool end_counts = MotionNow.Flow == MoveFlow::Continue && !f.optMoveWay[1].Value;
  for (Control* end : std::initializer_list<Control*>{&f.sldrEndPosiNo, &f.updownEndPosiNo}) {
    Switch(*end, idle || end_counts, kMovingTip);
  }
}

void ShowMoveTab() {
  PosiMoveTest& f = frmPosi.Move;
  const MsgId why_not = WhyNot();
  const bool idle = !why_not;
  for (CommandButton* start : {&f.cmdHome, &f.cmdSelectMove, &f.cmdMove, &f.cmdGrpMove}) {
    Switch(*start, idle, why_not);
  }
  Switch(f.cmdTmpStop, MotionNow.Flow == MoveFlow::Select, kOfRunningTip);
  Switch(f.cmdTempStop2, MotionNow.Flow == MoveFlow::Continue, kOfRunningTip);
  Switch(f.cmdGrpMoveStop, MotionNow.Flow == MoveFlow::Group, kOfRunningTip);
  ShowMoveSettings();
  ShowMoveRange();
  ShowGroupRange();
  ShowKeptPlaces();
}

/// Why a jog button is off; none where it is on. The one under the hand stays on while it is
/// served.
MsgId WhyNoJog(int axis) {
  const PosiTeaching& f = frmPosi.Teach;
  if (!AppState.TeachingNow || AppState.Offline) return WhyNoAct();
  if (!f.JogButtonsAreOn) return kBusyTip;
  if (f.DirectTeaching) return kDirectTip;
  return f.ServoOn[axis] ? MsgId() : MsgId(kServoOffTip);
}

std::string JogTip(int button, const std::string& key) {
  const std::string hold = Text(kHoldTip, key);
  return StandsAtEnd(button) ? Text(kAtTheEndTip) + "\n" + hold : hold;
}

void ShowJogButtons() {
  PosiTeaching& f = frmPosi.Teach;
  for (int axis = 0; axis < kAxes; ++axis) {
    f.lblJogAxis[axis].Visible = f.cmdJOGST.Visible && !AppState.AxisMuko[axis];
  }
  for (OptionButton* mode : {&f.optJOG, &f.optInching1, &f.optInching10, &f.optInching100}) {
    Switch(*mode, !AxisIsServed(), kBusyTip);
  }
  for (int i = 0; i < static_cast<int>(f.cmdJOG.size()); ++i) {
    HoldButton& button = f.cmdJOG[i];
    const int axis = i / 2;
    button.Visible = f.cmdJOGST.Visible && !AppState.AxisMuko[axis];
    const MsgId why_not = WhyNoJog(axis);
    Switch(button, !why_not, why_not);
    if (!why_not) button.ToolTip = JogTip(i, button.Key);
  }
}

void ShowServos() {
  PosiTeaching& f = frmPosi.Teach;
  const MsgId no_act = WhyNoAct();
  bool any = false;
  for (int axis = 0; axis < kAxes; ++axis) {
    CheckBox& box = f.chkSarvoOn[axis];
    const bool has = f.SarvoEnable[axis];
    any = any || has;
    box.Visible = f.cmdJOGST.Visible && !AppState.AxisMuko[axis];
    const MsgId why_not = no_act             ? no_act
                          : !has             ? MsgId(kNoServoTip)
                          : f.DirectTeaching ? MsgId(kDirectTip)
                                             : MsgId();
    Switch(box, !why_not, why_not);
  }
  f.lblSarvo.Visible = f.cmdJOGST.Visible;
  f.chkDirectTeach.Visible = f.cmdJOGST.Visible && any;
  Switch(f.chkDirectTeach, !no_act, no_act);
}

void ShowTeachingTab() {
  PosiTeaching& f = frmPosi.Teach;
  const bool teaching = AppState.TeachingNow;
  Switch(f.cmdJOGST, !WhyNot(), WhyNot());
  Switch(f.cmdJOGend, teaching && f.JogButtonsAreOn,
         teaching ? MsgId(kBusyTip) : MsgId(kNoSessionTip));
  f.Frame1.Enabled = true;
  ShowJogButtons();
  ShowServos();
  const MsgId no_take = WhyNoAct();
  for (CommandButton* take : {&f.cmdJOGWrite, &f.cmdJOGWriteNext}) {
    Switch(*take, !no_take, no_take);
  }
  f.lblJogVEL.Caption = std::to_string(f.sldrJogVEL.Value);
  const bool guarded = doors.guard && doors.guard->IsThere() && !MotionNow.Unguarded;
  f.lblTeachNote.Caption = Text(kEmergencyNote);
  if (!guarded) f.lblTeachNote.Caption += " " + Text(kNoGuardNote);
  ShowTeachLine();
}

/// A session or a flow keeps the user on its tab.
void ShowTabs() {
  const bool teaching = AppState.TeachingNow || MotionNow.Flow == MoveFlow::Teach;
  const bool moving = MotionNow.Flow != MoveFlow::None && MotionNow.Flow != MoveFlow::Teach;
  for (TabStrip* strip : {&frmPosi.tabCmd, &frmPosi.tabCmdPrg}) {
    const bool online = !AppState.Offline && !AppState.CtModePending;
    strip->Tabs[0].Enabled = !teaching && !moving;
    strip->Tabs[kMoveTab].Enabled = (online || moving) && !teaching;
    strip->Tabs[kTeachingTab].Enabled = (online || teaching) && !moving;
  }
  frmPosi.HelpPage = kHelpPages.at(frmPosi.SSTabCommand().Selected);
}

}  // namespace

void ShowKeptPlaces() {
  PosiMoveTest& f = frmPosi.Move;
  const bool idle = MotionNow.Flow == MoveFlow::None;
  const int row = SelectPlace(), number = ContinuePlace();
  Switch(f.cmdStop, MotionNow.Flow == MoveFlow::Select || (idle && row > 0), kOfPausedTip);
  Switch(f.cmdStop2, MotionNow.Flow == MoveFlow::Continue || (idle && number > 0), kOfPausedTip);
  if (!idle) return;
  std::string& next = f.lblNextNo.Caption;
  next = row > 0 ? Text(kRowWords, std::to_string(row)) : "";
  if (number > 0) next += (next.empty() ? "" : ", ") + std::to_string(number);
  if (next.empty()) next = "-";
}

void ShowMotionTabs() {
  ShowTabs();
  ShowReadout();
  ShowMoveTab();
  ShowTeachingTab();
  ShowMotionLamp();
}

}  // namespace tr7
