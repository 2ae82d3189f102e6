#pragma once

#include <cstddef>
#include <string>

#include "para/para_blocks.h"
#include "para/param_set.h"

namespace tr7 {

/// True when two sets hold the same there; of a device its size, speed and stroke count.
[[nodiscard]] bool SameParaCell(const ParamSetRecord& a, const ParamSetRecord& b,
                                const ParaCell& cell);

/// Compares `ParamSet` with `ParaTable` by value, over the rows of the controller and of the axes
/// in `mask` (axis i: 1 << i), which the other side must have, and fills `ParaFlags.VerifyLines`:
/// what differs, in each of the five groups, and `VerifyDetails`. 0 equal; 1 not; -1 where
/// `ParaTable` holds what no row can.
int BuildParaVerifyReport(int mask);

/// The report as a box says it: the groups that differ, and what differs in each.
std::string ParaVerifyText();

/// A set into `ParaTable` as it is printed: lengths by the display unit, the device text made
/// from its parts (which the set gets too), and these once more in rows of their own behind the
/// others. `ParaFromViewToTable` does so with `ParamSet`.
void ParaToPrintTable(ParamSetRecord& set);
void ParaFromViewToTable();

/// The rows of the device's parts there.
inline constexpr std::size_t kPrintedSizeRow = 36, kPrintedSpeedRow = 37, kPrintedStrokeRow = 38;

}  // namespace tr7
