#pragma once

#include <string>

namespace tr7 {

/// Fills `DevSetting` (and what it shares with `DevSettei`) from the settings. A device that the
/// new list holds takes lead and PPR from there. 0, or 1 when the device of some axis is not valid:
/// `NotChosen` marks it. Without a new list message 15 comes once and the stored leads serve.
int LoadDevSetting();

/// Stores the devices of the axes in use. Vertical and with-PG come from `DevSettei`; the PPR is
/// never stored.
void SaveDevSetting();

/// 0: a size of 3 characters, one speed letter "A" to "Z", a stroke of 10 to 600 mm. 1 otherwise.
int CheckDeviceFormat(const std::string& size, const std::string& speed, double stroke);

/// New type, size, speed, stroke, with-PG and vertical of the axes in use, from the devices in use
/// to those under consideration.
void LetDevSettingToDevSettei();

/// The axes and devices of the opened position file become those in use.
void ReflectFileDevice2PcDevice();

/// The same six fields for the axes of the opened position file: 0 equal, 1 different.
int CompareActuatorSettingOfPosifile2PC();

}  // namespace tr7
