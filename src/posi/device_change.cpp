#include "posi/device_change.h"

#include <cmath>

#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_keep.h"
#include "posi/posi_rebuild.h"
#include "posi/posi_table.h"
#include "posi/recalc.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

/// The whole loaded table is the range of an operation.
class LoadedRange {
 public:
  LoadedRange() : from_(AppState.PosiFromNo), to_(AppState.PosiToNo) {
    AppState.PosiFromNo = AppState.PosiFirstNo;
    AppState.PosiToNo = AppState.PosiLastNo;
  }
  ~LoadedRange() {
    AppState.PosiFromNo = from_;
    AppState.PosiToNo = to_;
  }
  LoadedRange(const LoadedRange&) = delete;
  LoadedRange& operator=(const LoadedRange&) = delete;

 private:
  std::int16_t from_, to_;
};

/// A position without millimetres has its pulses alone to go on with.
void FindMissingMm() {
  for (int axis = 0; axis < kAxes; ++axis) {
    const auto& pulses = PosiTable.PosiRec[AxisBase(axis) + kPosi];
    for (int no = AppState.PosiFirstNo; no <= AppState.PosiLastNo; ++no) {
      double& mm = PosiTable.PosiMm[axis][no];
      if (!std::isnan(mm)) continue;
      mm = PulseToMm(DevSetting[axis].Lead, DevSetting[axis].Ppr, ValueOf(pulses[no]))
               .value_or(kNoMm);
    }
  }
}

/// The other mode stores other speeds and accelerations, and an axis that goes out of use is stored
/// as fillers.
bool StoresLessThanItShowed() {
  if (AppState.PosiFirstNo < 1) return false;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!frmPosi.ShownMuko[axis] && AppState.AxisMuko[axis]) return true;
  }
  return frmPosi.ShownPrgMode != AppState.CtMode;
}

/// Saving must not replace the file unasked.
void LeaveFile() {
  if (PosiTableHasFile()) SetPosiTableName(Text(213));
  frmPosi.PosiChanged = True;
}

void Rebuild(KeptEdits::Unedited keeps) {
  const bool stores_less = StoresLessThanItShowed();
  const KeptEdits edits;
  RebuildPosiView();
  edits.PutBack(keeps);
  if (stores_less) LeaveFile();
}

bool Recalc() { return (AppState.DispMmUnit ? RecalcPulseFromMm() : RecalcMmFromPulse()) == 0; }

}  // namespace

void RebuildPosiViewKeepingEdits() { Rebuild(KeptEdits::Unedited::Millimetres); }

bool PositionsFollowDevices() {
  if (AppState.PosiFirstNo >= 1) FindMissingMm();
  RebuildPosiViewKeepingEdits();
  if (AppState.PosiFirstNo < 1) return true;
  // A transfer that connects on its way has its own range, which it goes on with.
  const LoadedRange range;
  const auto pulses = PosiTable.PosiPulse;
  if (PosiDataCheck3() != 0 || !Recalc()) {
    MsgBox(Text(1526));
    return false;
  }
  if (PosiTable.PosiPulse != pulses) frmPosi.PosiChanged = True;
  FG_ShowTable();
  return true;
}

void MmFollowsPulses() {
  if (AppState.PosiFirstNo >= 1) {
    const LoadedRange range;
    RecalcMmFromPulse();
  }
  Rebuild(KeptEdits::Unedited::Pulses);
}

}  // namespace tr7
