#pragma once

namespace tr7 {

/// The devices and axes that `ParamSet` names become those in use: stored, shown, and the limits
/// and the loaded positions follow them. 0; 1 when an axis has no device text: devices and limits
/// stay as they were then, and the caller puts the axes back.
int TakeDevicesOfParam();

}  // namespace tr7
