#pragma once

namespace tr7 {

/// The devices and axes that `ParamSet` names become those in use: stored, shown, and the limits
/// and the loaded positions follow them. False when an axis has no device text: devices and limits
/// stay as they were then, and the caller puts the axes back.
[[nodiscard]] bool TakeDevicesOfParam();

/// The first half of it: axes, devices and strokes alone, with nothing stored or shown. What a
/// controller reported earlier counts no more. False when an axis has no device text, and then they
/// are half taken: the caller puts them back.
[[nodiscard]] bool TakeDeviceFieldsOfParam();

}  // namespace tr7
