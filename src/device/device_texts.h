#pragma once

namespace tr7 {

/// Shows the device of every axis in the position view: the caption "QV- 28L-100E", the age beside
/// it and the axis's six rows of the side column. An axis not in use has no caption; from the first
/// axis in use whose series is unknown on, nothing stands at all.
void DeviceTextHyoji();

/// Shows in the status bar how many pulses a millimetre has and the reverse, for the first axis in
/// use.
void PulseScaleHyoji();
/// The same for one axis (0 to 3); nothing for an axis not in use or without a device.
void PulseScaleHyojiAxis(int axis);

}  // namespace tr7
