#include "motion/homing.h"

#include <string>

#include "forms/frm_posi.h"
#include "link/motion_commands.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "motion/home_state.h"
#include "motion/motion_log.h"
#include "motion/motion_now.h"
#include "motion/move_steps.h"
#include "motion/present_pos.h"
#include "motion/running_flow.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kHomePosition = 0;
constexpr int kActionHome = 5406, kNotSent = 5413;
constexpr int kFirstHomeLine = 562, kHomeLines = 7;
constexpr const char* kHomeSensorAlarm = "0%%134";

/// From before the start to the axes at home.
Rest GoHome(TusinFailure& failure) {
  if (MustRest()) {
    LogMotion(kActionHome, "", kNotSent);
    return Rest::Stopped;
  }
  // Until the axes are home there is nothing to go on from.
  AppState.HomeDone = False;
  ShowHomeState();
  const MotionScope motion(Motion::Homing);
  const auto send = [](TusinFailure* of) { return MoveAxesToCt(kHomePosition, 0, of); };
  return StartAndWait(kActionHome, MoveAxesFrame(kHomePosition, 0), send, failure);
}

void HomingIsDone() {
  AppState.HomeDone = True;
  ShowHomeState();
}

std::string HomeSensorText() {
  std::string text = Text(kFirstHomeLine);
  for (int i = 1; i < kHomeLines; ++i) text += "\n" + Text(MsgId::At(kFirstHomeLine, i));
  return text;
}

/// Why the homing has failed: the sensor has its own advice. The stop and its polls behind the
/// failure may have been refused with another alarm since.
void TellHomingFailure(const TusinFailure& failure) {
  const bool sensor = failure.reply.starts_with(kHomeSensorAlarm);
  const std::string text = sensor ? HomeSensorText() : TakenFailureText(failure);
  if (!text.empty()) MsgBox(text);
}

}  // namespace

void HomeRun() {
  if (!ConnectOrOpenPort() || StopAsked() || CtComStart() != 0 || !AxesAreAtRest()) {
    LogMotion(kActionHome, "", kNotSent);
    return;
  }
  TusinFailure failure;
  switch (GoHome(failure)) {
    case Rest::Standing:
      frmPosi.Readout.lblkanryoNo.Caption = "H0";
      HomingIsDone();
      static_cast<void>(ReadnDisp_PresentPos());  // its failure has been told
      break;
    case Rest::Failed:
      TusinPortClose();
      TellHomingFailure(failure);
      break;
    case Rest::Stopped:
      break;
  }
}

void cmdHome_Click() {
  const RunningFlow flow(MoveFlow::Home);
  HomeRun();
}

int GentenHukki() {
  TusinFailure failure;
  const Rest rest = GoHome(failure);
  if (rest == Rest::Failed) {
    TusinPortClose();
    TellHomingFailure(failure);
  }
  if (rest != Rest::Standing) return -1;
  HomingIsDone();
  return 0;
}

}  // namespace tr7
