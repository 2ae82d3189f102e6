#include "forms/plot.h"

#include <algorithm>

namespace tr7 {

std::optional<double> PlotTrace::At(std::int64_t at_ms) const {
  const auto behind =
      std::upper_bound(Samples.begin(), Samples.end(), at_ms,
                       [](std::int64_t at, const PlotSample& sample) { return at < sample.AtMs; });
  return behind == Samples.begin() ? std::nullopt : std::prev(behind)->Value;
}

}  // namespace tr7
