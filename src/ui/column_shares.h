#pragma once

#include <vector>

namespace tr7 {

/// The widths of columns that share a field in the proportion of `wanted`, each at least `least`
/// wide: what one takes beyond its share the others give, as long as they have it. A column that
/// wants 0 gets none.
std::vector<int> ColumnShares(int field, const std::vector<int>& wanted,
                              const std::vector<int>& least);

}  // namespace tr7
