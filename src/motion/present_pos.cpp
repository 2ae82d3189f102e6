#include "motion/present_pos.h"

#include <string>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "link/motion_commands.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/text.h"

namespace tr7 {

PresentPosRecord PresentPos;

namespace {

std::string InDisplayUnit(int axis, std::int32_t pulses) {
  if (!AppState.DispMmUnit) return std::to_string(pulses);
  const DevSettingRecord& device = DevSetting[axis];
  const auto mm = PulseToMm(device.Lead, device.Ppr, pulses);
  return mm ? FormatMm(*mm) : std::string("-");
}

}  // namespace

void ShowPresentPos() {
  PosiReadout& r = frmPosi.Readout;
  for (int axis = 0; axis < kAxes; ++axis) {
    r.lblPosi[axis].Caption =
        PresentPos.Known ? InDisplayUnit(axis, PresentPos.Pulses[axis]) : std::string("-");
    r.lblStroke[axis].Caption = "0 - " + InDisplayUnit(axis, AppState.MaxPulse[axis]);
  }
  r.lblPosiUnit.Caption = Text(5278) + " " + Text(AppState.DispMmUnit ? MsgId(5259) : MsgId(5258));
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

int ReadnDisp_PresentPos(TusinFailure* failure) {
  if (ReadPresentPosFromCt(PresentPos.Pulses, failure) != 0) return 1;
  PresentPos.Known = true;
  ShowPresentPos();
  frmPosi.Readout.lblKanryoiti.Caption = frmPosi.Readout.lblkanryoNo.Caption;
  return 0;
}

}  // namespace tr7
