#pragma once

#include <cstdint>

namespace tr7 {

/// A Boolean field of the shared records: 16 bits, True is -1 (all bits set), False is 0.
/// Anything but 0 tests as True.
class Bool16 {
 public:
  constexpr Bool16() = default;
  constexpr Bool16(bool on) : value_(on ? std::int16_t{-1} : std::int16_t{0}) {}
  constexpr operator bool() const { return value_ != 0; }
  /// The stored word: -1 or 0.
  constexpr std::int16_t Word() const { return value_; }

 private:
  std::int16_t value_ = 0;
};
static_assert(sizeof(Bool16) == 2);

inline constexpr Bool16 True{true};
inline constexpr Bool16 False{false};

}  // namespace tr7
