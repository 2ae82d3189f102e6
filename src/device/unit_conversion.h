#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "device/dev_setting.h"

namespace tr7 {

// Between millimetres and pulses. Lead is mm per motor turn, ppr pulses per motor turn. A result
// is empty when the conversion fails (a lead or ppr of 0, an overflow): the caller's operation has
// failed then, and stores nothing.

/// Millimetres of a pulse count, not rounded.
[[nodiscard]] std::optional<double> PulseToMm(double lead, double ppr, double pulses);

/// Whole pulses of a length in mm, halves to the even neighbour.
[[nodiscard]] std::optional<double> MmToPulse(double lead, double ppr, double mm);

/// The mm value of the pulse nearest to a typed mm value. The fraction of a pulse is rounded to
/// four decimals first; an exact tie then goes down in mode 0 and up in mode 1 (`SnapMode`).
[[nodiscard]] std::optional<double> SnapMmToPulse(double lead, int mode, double ppr, double mm);

/// The mode of `SnapMmToPulse` that the user has chosen: 1 when `MmRoundUp`, else 0.
int SnapMode();

/// A typed mm text as a number: at most 7 characters are taken, at most 3 behind the point, and
/// the rest is cut off, not rounded.
double CutMmText(std::string_view typed);

/// A computed mm value cut to 3 decimals, as kept when a pulse count is typed.
double CutComputedMm(double mm);

/// A value in the four-decimal fixed-point type: the nearest multiple of 0.0001, halves to even.
double ToFixed4(double value);

/// Pulses of a whole stroke (mm), a fraction carried up to the next whole pulse unless its first
/// decimal is 0; empty as above.
[[nodiscard]] std::optional<std::int32_t> StrokeToPulse(double stroke, double lead, double ppr);

// The limits of the four axes in `AppState`, from `DevSetting`. 0, or 1 on a failed conversion,
// and then the limits of all axes stay as they were.

/// `MaxPulse` and `StrokePulse`; 0 for an axis not in use.
int Culc_MaxPulse();
/// `MaxMm` from `MaxPulse`, cut to 3 decimals; an axis not in use keeps its value.
int CalcMaxMm();
/// `MaxVel` (mm/s): by lead and ppr for an axis in use, by its device for one that is not.
int CalcMaxVel();
/// `StrokeMm` from `StrokePulse`, cut to 3 decimals; an axis not in use keeps its value.
int CalcStrokeMm();

/// True for a device of speed letter "D" and size " 42", which has limits of its own.
bool IsD42(const DevSettingRecord& device);

/// Top of the speed range (mm/s) that a cell of this axis (0 to 3) may hold.
int SpeedLimit(int axis);

}  // namespace tr7
