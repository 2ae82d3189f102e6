#include "motion/motion_now.h"

#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "state/text.h"

namespace tr7 {

MotionNowRecord MotionNow;

void ShowMotionLamp() {
  const bool moving = MotionNow.Kind != Motion::None || MotionNow.MayRunOn;
  FrmMain& f = frmMain;
  f.imgMoving.Visible = moving;
  f.cmdStopNow.Enabled = moving;
  f.cmdStopNow.ToolTip = Text(moving ? MsgId(5295) : MsgId(5296));
}

void BeginMotion(Motion kind) {
  MotionNow.Kind = kind;
  if (doors.guard) doors.guard->Watch(kind == Motion::Jog);
  ShowMotionLamp();
}

void EndMotion() {
  if (MotionNow.Kind == Motion::None) return;
  MotionNow.Kind = Motion::None;
  if (doors.guard) doors.guard->Rest();
  ShowMotionLamp();
}

}  // namespace tr7
