#pragma once

#include <cstddef>
#include <string>

#include "para/para_fields.h"

namespace tr7 {

// Lengths of the parameter view: the fields in mm and in pulses of one axis. Lead and pulses per
// turn are those that the view shows.

/// A length as its field shows it: three decimals, blanks in front up to 7 characters.
std::string ParaMmText(double mm);

/// True when LEAD and PULSE of this axis hold something.
bool HasLeadAndPulse(int axis);

/// The mm field from the pulse field; empty when there is nothing to convert or by.
void ShowMmOfPulses(const ParaMmField& field, int axis);

/// The pulse field from the mm field, whose text stays.
void ShowPulsesOfMm(const ParaMmField& field, int axis);

/// Where a length exactly between two pulses goes.
enum class MmTie { ToEven, AsUserChose };

/// Both fields from the mm field: cut to 7 characters and 3 decimals, then to the nearest pulse.
/// False, and both stay, when they cannot be converted.
bool RoundParaMm(const ParaMmField& field, int axis, MmTie tie);

}  // namespace tr7
