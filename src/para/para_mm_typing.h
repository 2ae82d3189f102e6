#pragma once

#include <cstddef>

namespace tr7 {

// Lengths of the parameter view as they are typed. What is typed in mm counts; pulses typed into
// STROKE are shown in mm at once.

/// LEAD or PULSE of this axis may have changed: the pulses follow the lengths in mm, or these the
/// pulses where there are none yet.
void LengthsFollowScale(int axis);

void InstallParaMmTyping();

}  // namespace tr7
