#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/axes.h"
#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "para/param_set.h"
#include "state/app_state.h"

namespace tr7 {

/// Devices, axes and parameters as they were, unless what replaces them is kept.
class DevicesOnTrial {
 public:
  DevicesOnTrial() = default;
  ~DevicesOnTrial();
  void Keep() { kept_ = true; }
  DevicesOnTrial(const DevicesOnTrial&) = delete;
  DevicesOnTrial& operator=(const DevicesOnTrial&) = delete;

 private:
  using Devices = AxisArray<DevSettingRecord>;
  const Devices in_use_ = DevSetting, pending_ = DevSettei;
  const decltype(CtDev) reported_ = CtDev;
  const ParamSetRecord params_ = ParamSet;
  const ParaFlagsRecord flags_ = ParaFlags;
  const decltype(AppState.AxisMuko) muko_ = AppState.AxisMuko;
  const decltype(AppState.StrokePulse) stroke_pulse_ = AppState.StrokePulse;
  const decltype(AppState.StrokeMm) stroke_mm_ = AppState.StrokeMm;
  const std::int16_t axis_count_ = AppState.AxisCount;
  bool kept_ = false;
};

/// The devices under consideration are those of no file once the flow ends.
class DevSetteiKept {
 public:
  DevSetteiKept() = default;
  ~DevSetteiKept() { DevSettei = kept_; }
  DevSetteiKept(const DevSetteiKept&) = delete;
  DevSetteiKept& operator=(const DevSetteiKept&) = delete;

 private:
  AxisArray<DevSettingRecord> kept_ = DevSettei;
};

/// A device that the position file read last names for an axis (0 to 3), where another is in use
/// there; an empty name is none.
struct OtherDevice {
  int axis;
  std::string in_use, of_file;
};
std::vector<OtherDevice> OtherDevicesOfFile();

/// By whose devices the positions of a file are shown. `Refused`: they are not to be shown.
enum class FileDevices { Refused, OfFile, Others };

/// Holds the axes and devices that the position file read last names against those in use. Where
/// they differ the user decides by whose its positions are shown, and the devices follow. Refused
/// are a name that is not valid, Cancel, a failure, or an axis that cannot convert, each told; the
/// caller's `DevicesOnTrial` then takes back what has changed.
[[nodiscard]] FileDevices ReconcileFileDevices();

}  // namespace tr7
