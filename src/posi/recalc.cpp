#include "posi/recalc.h"

#include <algorithm>
#include <limits>

#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"

namespace tr7 {
namespace {

/// Calls `convert(axis, number)` for every cell of the range until one fails.
template <typename Convert>
bool ForRange(Convert convert) {
  const int last = std::min<int>(AppState.PosiToNo, kPosiMaxNo);
  for (const int axis : AxesInUse()) {
    for (int no = std::max<int>(AppState.PosiFromNo, 1); no <= last; ++no) {
      if (!convert(axis, no)) return false;
    }
  }
  return true;
}

}  // namespace

int RecalcMmFromPulse() {
  bool good = true;
  ForRange([&good](int axis, int no) {
    const DevSettingRecord& device = DevSetting[axis];
    const auto mm = PulseToMm(device.Lead, device.Ppr, PosiTable.PosiPulse[axis][no]);
    PosiTable.PosiMm[axis][no] = mm.value_or(kNoMm);
    good = good && mm;
    return true;
  });
  return good ? 0 : 1;
}

int RecalcPulseFromMm() {
  auto fresh = PosiTable.PosiPulse;
  const bool good = ForRange([&](int axis, int no) {
    const DevSettingRecord& device = DevSetting[axis];
    const auto pulses = MmToPulse(device.Lead, device.Ppr, PosiTable.PosiMm[axis][no]);
    using Limits = std::numeric_limits<std::int32_t>;
    if (!pulses || *pulses < Limits::min() || *pulses > Limits::max()) return false;
    fresh[axis][no] = static_cast<std::int32_t>(*pulses);
    return true;
  });
  if (!good) return 1;
  PosiTable.PosiPulse = fresh;
  ForRange([](int axis, int no) {
    const int column = AxisBase(axis) + kPosi;
    PosiTable.PosiRec[column][no] = static_cast<double>(PosiTable.PosiPulse[axis][no]);
    return true;
  });
  return 0;
}

}  // namespace tr7
