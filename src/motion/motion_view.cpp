#include "motion/motion_view.h"

#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "link/status_commands.h"
#include "motion/home_state.h"
#include "motion/homing.h"
#include "motion/inching.h"
#include "motion/jog.h"
#include "motion/motion_log.h"
#include "motion/motion_log_view.h"
#include "motion/motion_now.h"
#include "motion/motion_tabs.h"
#include "motion/move_flows.h"
#include "motion/present_pos.h"
#include "motion/stop.h"
#include "motion/teaching.h"
#include "motion/teaching_session.h"
#include "session/followers.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

void StepSpeed(int step) {
  Slider& speed = frmPosi.Teach.sldrJogVEL;
  speed.Set(speed.Value + step * speed.Step);
}

void InstallTeaching() {
  PosiTeaching& f = frmPosi.Teach;
  for (int i = 0; i < static_cast<int>(f.cmdJOG.size()); ++i) {
    f.cmdJOG[i].MouseDown = [i] { cmdJOG_MouseDown(i); };
    f.cmdJOG[i].MouseUp = [i] { cmdJOG_MouseUp(i); };
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    f.chkSarvoOn[axis].Click = [axis] { chkSarvoOn_Click(axis); };
  }
  f.cmdJOGST.Click = cmdJOGST_Click;
  f.cmdJOGend.Click = cmdJOGend_Click;
  f.chkDirectTeach.Click = chkDirectTeach_Click;
  f.cmdJOGWrite.Click = cmdJOGWrite_Click;
  f.cmdJOGWriteNext.Click = cmdJOGWriteNext_Click;
  f.sldrJogVEL.Value = f.sldrJogVEL.Min;
  f.sldrJogVEL.Change = [] {
    frmPosi.Teach.lblJogVEL.Caption = std::to_string(frmPosi.Teach.sldrJogVEL.Value);
  };
  f.cmdJogSlower.Click = [] { StepSpeed(-1); };
  f.cmdJogFaster.Click = [] { StepSpeed(1); };
  f.TimerDelay.Tick = TimerDelay_Tick;
  f.timerJogStop.Tick = timerJogStop_Tick;
  f.timerTeaching.Tick = timerTeaching_Tick;
}

/// A new connection can tell what the former one has left in doubt.
void AskWhetherItRests() {
  TusinFailure failure;
  if (MotionNow.MayRunOn && ReadAlarmFromCt(&failure) == 1) SetMayRunOn(false);
}

}  // namespace

void InstallMotion() {
  InstallTeaching();
  InstallMoveControls();
  InstallMotionLogView();
  PosiMoveTest& f = frmPosi.Move;
  f.cmdHome.Click = cmdHome_Click;
  frmPosi.Readout.TimerAge.Tick = LookAtPresentPosAge;
  f.timerEventCheck.Tick = ShowHomeState;
  // An idle tool is not woken for a lamp that tells the truth.
  f.timerEventCheck.HasWork = [] {
    return frmPosi.Loaded && frmPosi.Readout.imgHomeGreen.Visible != bool(AppState.HomeDone);
  };
  frmPosi.MotionTabs = ShowMotionTabs;
  frmMain.cmdStopNow.Click = [] { StopAtOnce(); };
  frmMain.Escape = StopAtOnce;
  TeachingSession.EndAsLost = EndTeachingAsLost;
  Followers.StopBeforeTheEnd = StopBeforeTheEnd;
  Followers.SessionBegins = [] {
    ForgetPauses();
    ForgetPresentPos();
  };
  Followers.SessionStands = AskWhetherItRests;
}

void ResetMotion() {
  MotionNow = MotionNowRecord{};
  MotionLog.clear();
  PresentPos = PresentPosRecord{};
  InchingFrame.clear();
  TeachingSession.commands_off.reset();
  TeachingSession.lost = false;
}

}  // namespace tr7
