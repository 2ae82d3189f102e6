#include "posi/unit_change.h"

#include "forms/frm_posi.h"
#include "posi/posi_check.h"
#include "posi/posi_edits.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/recalc.h"
#include "state/app_state.h"
#include "state/settings.h"

namespace tr7 {

bool CheckInPlace() {
  const KeepPlace place;
  return PosiDataCheckAll();
}

void TakePosiUnit(bool mm) {
  PutSetting("DispMmUnit", mm ? 1 : 0);
  AppState.DispMmUnit = mm;
  Change_DispUnit();
  if (frmPosi.MotionTabs) frmPosi.MotionTabs();
}

void ShowInUnit(bool mm) {
  const KeepPlace place;
  RememberPosiUnit();
  RecalcMmFromPulse();
  TakePosiUnit(mm);
  FG_ShowTableAgain();
}

}  // namespace tr7
