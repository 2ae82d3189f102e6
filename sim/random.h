#pragma once

#include <cstdint>

namespace qvr7sim {

/// A small generator whose sequence is the same on every system (splitmix64).
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    std::uint64_t z = (state_ += 0x9E3779B97F4A7C15U);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
  }
  /// 0 to bound - 1; bound above 0.
  std::uint64_t Below(std::uint64_t bound) { return Next() % bound; }
  /// True with probability p; draws nothing for 0.
  bool Chance(double p) { return p > 0.0 && static_cast<double>(Next() >> 11) * 0x1.0p-53 < p; }

 private:
  std::uint64_t state_;
};

}  // namespace qvr7sim
