#include "posi/posi_table.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "device/dev_setting.h"
#include "device/unit_conversion.h"

namespace tr7 {

PosiTableRecord PosiTable;

namespace {

constexpr double kDefaultVel = 30;
constexpr double kDefaultAcc = 10;     // tens of milliseconds
constexpr double kDefaultAccD42 = 20;  // a device of that kind starts gently

}  // namespace

double PosiDefault(int col) {
  const int axis = AxisOfColumn(col);
  if (axis < 0) return 0;
  switch (FieldOfColumn(col)) {
    case kVel:
      return kDefaultVel;
    case kAcc: {
      const bool gentle = !AppState.AxisMuko[axis] && IsD42(DevSetting[axis]);
      return gentle ? kDefaultAccD42 : kDefaultAcc;
    }
    default:
      return 0;
  }
}

namespace {

Variant StartValue(int col) {
  return col == kComment ? Variant(std::string()) : Variant(PosiDefault(col));
}

}  // namespace

void PosiStageInit() {
  PosiTable.StageHolds.reset();
  PosiStageFillRest();
}

void PosiStageFillRest() {
  for (int col = 1; col < kPosiColumns; ++col) {
    const Variant value = StartValue(col);
    auto& column = PosiTable.PosiStage[col];
    for (std::size_t n = 1; n < column.size(); ++n) {
      if (!PosiTable.StageHolds[n]) column[n] = value;
    }
  }
}

void PosiTableInit() {
  for (std::string& reply : PosiTable.PosiRawReply) reply.clear();
  for (auto& pulses : PosiTable.PosiPulse) pulses.fill(0);
  for (auto& lengths : PosiTable.PosiMm) lengths.fill(0);
  PosiStageInit();
  for (int col = 1; col < kPosiColumns; ++col) {
    PosiTable.PosiRec[col].fill(StartValue(col));
  }
}

namespace {

/// Whole pulses of a stage field, within what a pulse count holds.
std::int32_t StagedPulses(const Variant& field) {
  using Limits = std::numeric_limits<std::int32_t>;
  const double pulses = std::nearbyint(ValueOf(field));
  return static_cast<std::int32_t>(std::clamp<double>(pulses, Limits::min(), Limits::max()));
}

}  // namespace

void PosiStageCommit() {
  const int first = std::max<int>(AppState.PosiFirstNo, 1);
  const int last = std::min<int>(AppState.PosiLastNo, kPosiMaxNo);
  for (std::size_t col = 1; col < kPosiColumns; ++col) {
    for (int n = first; n <= last; ++n) PosiTable.PosiRec[col][n] = PosiTable.PosiStage[col][n];
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    const int col = AxisBase(axis) + kPosi;
    for (int n = first; n <= last; ++n) {
      const std::int32_t pulses = StagedPulses(PosiTable.PosiStage[col][n]);
      PosiTable.PosiPulse[axis][n] = pulses;
      PosiTable.PosiRec[col][n] = static_cast<double>(pulses);
    }
  }
}

}  // namespace tr7
