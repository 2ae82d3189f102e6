#include "posi/unit_change.h"

#include "posi/posi_check.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/recalc.h"

namespace tr7 {

bool CheckInPlace() {
  const KeepPlace place;
  return PosiDataCheckAll();
}

void ShowInNewUnit() {
  const KeepPlace place;
  RecalcMmFromPulse();
  Change_DispUnit();
  FG_ShowTable();
}

}  // namespace tr7
