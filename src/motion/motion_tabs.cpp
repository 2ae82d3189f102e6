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
constexpr int kRowWords = 5510;
constexpr int kAxis1 = 220;
constexpr int kMoveTab = 1, kTeachingTab = 2;
constexpr std::array kHelpPages{"positions", "moves", "teaching"};  ///< a tab each

/// Why nothing can be started now; none where it can.
MsgId WhyNot() {
  if (AppState.Offline) return kOfflineTip;
  const bool busy = MotionNow.Flow != MoveFlow::None || AppState.CommandsOffDepth > 0;
  return busy ? MsgId(kMovingTip) : MsgId();
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

void ShowMoveTab() {
  PosiMoveTest& f = frmPosi.Move;
  const MsgId why_not = WhyNot();
  const bool idle = !why_not;
  for (CommandButton* start : {&f.cmdHome, &f.cmdSelectMove, &f.cmdMove, &f.cmdGrpMove}) {
    Switch(*start, idle, why_not);
  }
  f.cmdTmpStop.Enabled = MotionNow.Flow == MoveFlow::Select;
  f.cmdTempStop2.Enabled = MotionNow.Flow == MoveFlow::Continue;
  f.cmdGrpMoveStop.Enabled = MotionNow.Flow == MoveFlow::Group;
  for (Control* setting : std::initializer_list<Control*>{
           &f.flgdProgram, &f.chkNoSqMcr1, &f.optMoveWay[0], &f.optMoveWay[1], &f.sldrStartPosiNo,
           &f.updownStartPosiNo, &f.chkNoSqMcr2, &f.sldrGrpNo}) {
    setting->Enabled = MotionNow.Flow == MoveFlow::None;
  }
  ShowMoveRange();
  ShowGroupRange();
  ShowKeptPlaces();
}

/// What moves by a hand or by a step is not interfered with from beside it.
bool AxisIsServed() { return MotionNow.Kind != Motion::None || frmPosi.Teach.JogPending; }

void ShowJogButtons(bool session) {
  PosiTeaching& f = frmPosi.Teach;
  for (int axis = 0; axis < kAxes; ++axis) {
    f.lblJogAxis[axis].Visible = f.cmdJOGST.Visible && !AppState.AxisMuko[axis];
  }
  for (OptionButton* mode : {&f.optJOG, &f.optInching1, &f.optInching10, &f.optInching100}) {
    mode->Enabled = !AxisIsServed();
  }
  const bool on = session && f.JogButtonsAreOn && !f.DirectTeaching;
  for (int i = 0; i < static_cast<int>(f.cmdJOG.size()); ++i) {
    HoldButton& button = f.cmdJOG[i];
    const int axis = i / 2;
    button.Visible = f.cmdJOGST.Visible && !AppState.AxisMuko[axis];
    button.Enabled = on && f.ServoOn[axis];
    button.ToolTip = session ? Text(kHoldTip, button.Key) : Text(kNoSessionTip);
    if (session && StandsAtEnd(i)) button.ToolTip = Text(kAtTheEndTip) + "\n" + button.ToolTip;
  }
}

void ShowServos(bool session) {
  PosiTeaching& f = frmPosi.Teach;
  const bool busy = !f.JogButtonsAreOn || AxisIsServed();
  bool any = false;
  for (int axis = 0; axis < kAxes; ++axis) {
    CheckBox& box = f.chkSarvoOn[axis];
    const bool has = f.SarvoEnable[axis];
    any = any || has;
    box.Visible = f.cmdJOGST.Visible && !AppState.AxisMuko[axis];
    const MsgId why_not = !has ? MsgId(kNoServoTip) : busy ? MsgId(kMovingTip) : MsgId();
    Switch(box, session && has && !busy && !f.DirectTeaching, session ? why_not : MsgId());
  }
  f.lblSarvo.Visible = f.cmdJOGST.Visible;
  f.chkDirectTeach.Visible = f.cmdJOGST.Visible && any;
  f.chkDirectTeach.Enabled = session && !busy;
}

void ShowTeachingTab() {
  PosiTeaching& f = frmPosi.Teach;
  const bool teaching = AppState.TeachingNow;
  const bool session = teaching && !AppState.Offline;
  const MsgId why_not = WhyNot();
  Switch(f.cmdJOGST, !teaching && !why_not, teaching ? MsgId() : why_not);
  f.cmdJOGend.Enabled = teaching && f.JogButtonsAreOn;
  f.Frame1.Enabled = true;
  ShowJogButtons(session);
  ShowServos(session);
  const MsgId no_take = !teaching ? MsgId(kNoSessionTip)
                        : session ? MsgId(kMovingTip)
                                  : MsgId(kOfflineTip);
  for (CommandButton* take : {&f.cmdJOGWrite, &f.cmdJOGWriteNext}) {
    Switch(*take, session && f.JogButtonsAreOn && !AxisIsServed(), no_take);
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
  f.cmdStop.Enabled = MotionNow.Flow == MoveFlow::Select || (idle && row > 0);
  f.cmdStop2.Enabled = MotionNow.Flow == MoveFlow::Continue || (idle && number > 0);
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
