#include "device/unit_conversion.h"

#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "base/text_helpers.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

constexpr int kCutChars = 7;
constexpr int kCutDecimals = 3;
constexpr int kVelNotInUse = 30;
constexpr int kVelD42 = 400;

std::optional<double> IfFinite(double value) {
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

template <typename Whole>
std::optional<Whole> ToWhole(double value) {
  const double whole = std::nearbyint(value);
  using Limits = std::numeric_limits<Whole>;
  if (!(whole >= Limits::min() && whole <= Limits::max())) return std::nullopt;
  return static_cast<Whole>(whole);
}

std::optional<double> PulseToMmCut(const DevSettingRecord& device, double pulses) {
  const auto mm = PulseToMm(device.Lead, device.Ppr, pulses);
  if (!mm) return std::nullopt;
  return ToFixed4(std::trunc(*mm * 1000) / 1000);
}

/// Speed limit by gearing: 25 turns a second at 400 pulses a turn.
std::optional<std::int16_t> VelOfGear(const DevSettingRecord& device) {
  const auto product = ToWhole<std::int16_t>(device.Lead * 25.0);
  if (!product) return std::nullopt;
  return ToWhole<std::int16_t>(*product * (400.0 / device.Ppr));
}

/// Speed limit of an axis not in use; `present` where its device has none of its own.
std::optional<std::int16_t> VelOfDevice(const DevSettingRecord& device, std::int16_t present) {
  const std::string& size = device.Size;
  if (Trim(size).empty()) return kVelNotInUse;
  if (size == " 99") return VelOfGear(device);
  if (IsD42(device)) return kVelD42;
  if (device.Speed == "L") return size == " 50" ? 100 : 50;
  if (device.Speed == "H") {
    if (size == " 50") return 300;
    return size == " 28" || size == " 35" ? 150 : 200;
  }
  return present;
}

/// Runs `limit_of(axis)` for every axis and stores the results when all are good.
template <typename Limits, typename LimitOf>
int Store(Limits& limits, LimitOf limit_of) {
  Limits fresh{};
  for (std::size_t a = 0; a < fresh.size(); ++a) {
    const auto limit = limit_of(a);
    if (!limit) return 1;
    fresh[a] = *limit;
  }
  limits = fresh;
  return 0;
}

}  // namespace

std::optional<double> PulseToMm(double lead, double ppr, double pulses) {
  return lead == 0 ? std::nullopt : IfFinite(pulses * (lead / ppr));
}

std::optional<double> MmToPulse(double lead, double ppr, double mm) {
  return IfFinite(std::nearbyint(mm / lead * ppr));
}

std::optional<double> SnapMmToPulse(double lead, int mode, double ppr, double mm) {
  const double unit = lead / ppr;
  const double q = mm / unit;
  if (!std::isfinite(unit) || !std::isfinite(q)) return std::nullopt;
  const double whole = std::trunc(q);
  const double fraction = ToFixed4(q - whole);
  const bool up = mode == 1 ? fraction >= 0.5 : fraction > 0.5;
  return IfFinite((up ? std::trunc(q + 0.5) : whole) * unit);
}

int SnapMode() { return AppState.MmRoundUp ? 1 : 0; }

double CutMmText(std::string_view typed) {
  std::string taken;
  int budget = kCutChars;
  for (const char c : Trim(Str(Val(typed)))) {
    if (budget == 0) break;
    budget = c == '.' ? kCutDecimals : budget - 1;
    taken += c;
  }
  return Val(taken);
}

double CutComputedMm(double mm) {
  const double whole = std::floor(mm);
  const std::string fraction = PlainDecimal(ToFixed4(mm - whole));
  return whole + Val(LeftChars(fraction, 2 + kCutDecimals));
}

double ToFixed4(double value) { return std::nearbyint(value * 10000) / 10000; }

std::optional<std::int32_t> StrokeToPulse(double stroke, double lead, double ppr) {
  const double pulses = stroke / lead * ppr;
  if (!std::isfinite(pulses)) return std::nullopt;
  return ToWhole<std::int32_t>(std::trunc(RoundToOneDecimal(pulses) + 0.9));
}

int Culc_MaxPulse() {
  const int result = Store(AppState.MaxPulse, [](std::size_t a) -> std::optional<std::int32_t> {
    if (AppState.AxisMuko[a]) return 0;
    const DevSettingRecord& device = DevSetting[a];
    return StrokeToPulse(device.Stroke, device.Lead, device.Ppr);
  });
  if (result != 0) return result;
  for (std::size_t a = 0; a < kAxes; ++a) AppState.StrokePulse[a] = AppState.MaxPulse[a];
  return 0;
}

int CalcMaxMm() {
  return Store(AppState.MaxMm, [](std::size_t a) -> std::optional<double> {
    if (AppState.AxisMuko[a]) return AppState.MaxMm[a];
    return PulseToMmCut(DevSetting[a], AppState.MaxPulse[a]);
  });
}

int CalcMaxVel() {
  return Store(AppState.MaxVel, [](std::size_t a) {
    return AppState.AxisMuko[a] ? VelOfDevice(DevSetting[a], AppState.MaxVel[a])
                                : VelOfGear(DevSetting[a]);
  });
}

int CalcStrokeMm() {
  return Store(AppState.StrokeMm, [](std::size_t a) -> std::optional<double> {
    if (AppState.AxisMuko[a]) return AppState.StrokeMm[a];
    return PulseToMmCut(DevSetting[a], AppState.StrokePulse[a]);
  });
}

bool IsD42(const DevSettingRecord& device) { return device.Speed == "D" && device.Size == " 42"; }

int SpeedLimit(int axis) {
  if (AppState.AxisMuko[axis]) return kVelNotInUse;
  return IsD42(DevSetting[axis]) ? kVelD42 : AppState.MaxVel[axis];
}

}  // namespace tr7
