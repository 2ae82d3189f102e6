#include "motion/present_pos.h"

#include <string>

#include "base/scope.h"
#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "link/motion_commands.h"
#include "link/request_queue.h"
#include "motion/motion_now.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/text.h"

namespace tr7 {

PresentPosRecord PresentPos;

namespace {

constexpr int kTrueAt = 7338;

std::string InDisplayUnit(int axis, std::int32_t pulses) {
  if (!AppState.DispMmUnit) return std::to_string(pulses);
  const DevSettingRecord& device = DevSetting[axis];
  const auto mm = PulseToMm(device.Lead, device.Ppr, pulses);
  return mm ? FormatMm(*mm) : std::string("-");
}

}  // namespace

void ShowPresentPos() {
  PosiReadout& r = frmPosi.Readout;
  const bool old = PresentPos.Known && PresentPos.Old;
  for (int axis = 0; axis < kAxes; ++axis) {
    r.lblPosi[axis].Caption =
        PresentPos.Known ? InDisplayUnit(axis, PresentPos.Pulses[axis]) : std::string("-");
    r.lblPosi[axis].Enabled = !old;
    r.lblPosi[axis].ToolTip = old ? Text(kTrueAt, PresentPos.TrueAt) : std::string();
    r.lblStroke[axis].Caption = "0 - " + InDisplayUnit(axis, AppState.MaxPulse[axis]);
  }
  r.lblPosiUnit.Caption = Text(5278) + " " + Text(AppState.DispMmUnit ? MsgId(5259) : MsgId(5258));
}

void LookAtPresentPosAge() {
  if (MotionNow.Kind == Motion::None) return frmPosi.Readout.TimerAge.Stop();
  const std::int64_t now_us = doors.pump->NowUs();
  if (now_us - PresentPos.TrueUs <= kAnswerOldUs || !TusinQueue.IsUnanswered(now_us)) return;
  PresentPos.Old = true;
  ShowPresentPos();
}

bool StandsAtEnd(int jog_button) {
  const int axis = jog_button / 2;
  const std::int32_t here = PresentPos.Pulses[axis];
  return PresentPos.Known && (jog_button % 2 == 0 ? here <= 0 : here >= AppState.MaxPulse[axis]);
}

void ForgetPresentPos() {
  PresentPos = PresentPosRecord{};
  frmPosi.Readout.lblkanryoNo.Caption.clear();
  ShowPresentPos();
}

void ShowPosBehindStop(bool stand, TusinFailure* failure) {
  // A group's stop ends the polls of its move without words: not this one.
  MotionNow.Braking = True;
  const ScopeExit ended([] { MotionNow.Braking = False; });
  if (stand && ReadnDisp_PresentPos(failure) == 0) return;
  PresentPos.Known = false;
  ShowPresentPos();
}

int ReadnDisp_PresentPos(TusinFailure* failure) {
  if (ReadPresentPosFromCt(PresentPos.Pulses, failure) != 0) return 1;
  PresentPos.Known = true;
  PresentPos.Old = false;
  PresentPos.TrueAt = doors.pump->TimeOfDay();
  PresentPos.TrueUs = doors.pump->NowUs();
  if (!frmPosi.Readout.TimerAge.Enabled) frmPosi.Readout.TimerAge.Start();
  ShowPresentPos();
  frmPosi.Readout.lblKanryoiti.Caption = frmPosi.Readout.lblkanryoNo.Caption;
  return 0;
}

}  // namespace tr7
