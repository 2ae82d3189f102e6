#pragma once

#include <cstdint>
#include <string>

#include "base/axes.h"
#include "base/bool16.h"
#include "state/app_state.h"

namespace tr7 {

/// The actuator on one axis.
struct DevSettingRecord {
  std::string Size;         ///< 3 characters, such as " 28" or "E35"; empty: not chosen
  std::string Speed;        ///< one letter
  std::int16_t Stroke = 0;  ///< mm
  std::int16_t Lead = 0;    ///< mm per motor turn
  std::int32_t Ppr = 0;     ///< pulses per motor turn; the controller takes up to 65535
  double MmPerPulse = 0;
  Bool16 NewType;
  std::string NewTypeWord;  ///< "NEW" or "OLD"
  Bool16 Vertical;
  Bool16 WithPG;
  Bool16 SeriesOk;
  std::string Series = "QV";
  Bool16 NotChosen =
      True;  ///< the device of this axis is not chosen yet, or its settings are invalid
};

/// The devices in use, and those under consideration (from a position file or a dialogue).
extern AxisArray<DevSettingRecord> DevSetting;
extern AxisArray<DevSettingRecord> DevSettei;

/// The device names in the header of the position file that was read last, as it spells them; an
/// empty one: no device on that axis. Its words "NEW" and "OLD" go to `DevSettei.NewTypeWord`.
extern AxisArray<std::string> FileDevice;

/// `MmPerPulse` from lead and PPR; 0 without a PPR.
void CalcMmPerPulse(DevSettingRecord& device);

/// Every axis in use has a device.
bool EveryAxisHasADevice();

}  // namespace tr7
