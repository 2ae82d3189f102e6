#pragma once

#include <array>
#include <cstddef>

namespace tr7 {

/// Slots 1 to 72 are in use.
inline constexpr std::size_t kSysParaSlots = 72;

/// The controller's tuning values by slot; what is not in use is 0.
using SysParaRecord = std::array<double, 81>;

/// What the user edits.
extern SysParaRecord SysPara;
/// What the controller is last known to hold.
extern SysParaRecord SysParaRead;

}  // namespace tr7
