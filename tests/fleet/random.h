#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace tr7 {

/// A seeded source of chances: the same seed gives the same run on every machine.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15ull + 1) {}

  /// 0 to `bound` - 1.
  int Below(int bound) {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return static_cast<int>((state_ >> 11) % static_cast<std::uint64_t>(bound));
  }
  int Between(int low, int high) { return low + Below(high - low + 1); }
  bool Chance(int percent) { return Below(100) < percent; }
  template <typename T>
  T OneOf(std::initializer_list<T> values) {
    return *(values.begin() + Below(static_cast<int>(values.size())));
  }

 private:
  std::uint64_t state_;
};

}  // namespace tr7
