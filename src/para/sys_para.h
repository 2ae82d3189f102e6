#pragma once

#include <array>
#include <cstddef>

#include "base/bool16.h"

namespace tr7 {

/// Slots 1 to 72 are in use.
inline constexpr std::size_t kSysParaSlots = 72;

/// The controller's tuning values by slot; what is not in use is 0.
using SysParaRecord = std::array<double, 81>;

/// What the user edits.
extern SysParaRecord SysPara;
/// What the controller is last known to hold.
extern SysParaRecord SysParaRead;
/// It has been read or written since the start.
extern Bool16 SysParaKnown;

/// The highest value of a slot (1 to 72); the lowest is 0.
int SysParaHighest(std::size_t slot);

bool SysParaIsInRange(std::size_t slot);

/// `SysPara` within its ranges: 0, or 1 on a breach.
int SystemParametaValueCheck();

}  // namespace tr7
