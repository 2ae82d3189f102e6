#include "ui/column_shares.h"

#include <algorithm>
#include <cstddef>

namespace tr7 {

std::vector<int> ColumnShares(int field, const std::vector<int>& wanted,
                              const std::vector<int>& least) {
  std::vector<int> shares(wanted.size(), 0);
  std::vector<std::size_t> open;
  int total = 0;
  for (std::size_t col = 0; col < wanted.size(); ++col) {
    if (wanted[col] <= 0) continue;
    open.push_back(col);
    total += wanted[col];
  }
  const auto share = [&](std::size_t col) { return field * wanted[col] / total; };
  const auto next_narrow = [&] {
    return std::ranges::find_if(open, [&](std::size_t col) { return share(col) < least[col]; });
  };
  for (auto narrow = next_narrow(); narrow != open.end(); narrow = next_narrow()) {
    shares[*narrow] = least[*narrow];
    field -= least[*narrow];
    total -= wanted[*narrow];
    open.erase(narrow);
  }
  for (const std::size_t col : open) shares[col] = share(col);
  return shares;
}

}  // namespace tr7
