#include "motion/home_state.h"

#include "forms/frm_posi.h"
#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {

void ShowHomeState() {
  constexpr int kHomed = 5276, kNotHomed = 5277;
  PosiReadout& r = frmPosi.Readout;
  const bool homed = AppState.HomeDone;
  r.imgHomeGreen.Visible = homed;
  r.imgHomeWhite.Visible = !homed;
  r.lblHomeState.Caption = Text(homed ? MsgId(kHomed) : MsgId(kNotHomed));
}

}  // namespace tr7
