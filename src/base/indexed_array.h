#pragma once

#include <array>
#include <cassert>
#include <concepts>
#include <cstddef>

namespace tr7 {

/// `N` values from index 0. An index may be of any whole type; one out of bounds stops a build that
/// has its assertions.
template <typename T, std::size_t N>
struct IndexedArray : std::array<T, N> {
  using Base = std::array<T, N>;
  /// From its plain form; a list in braces is one of its own.
  template <std::same_as<Base> Plain>
  IndexedArray& operator=(const Plain& plain) {
    static_cast<Base&>(*this) = plain;
    return *this;
  }
  template <std::integral Index>
  constexpr T& operator[](Index index) {
    return Base::operator[](Checked(index));
  }
  template <std::integral Index>
  constexpr const T& operator[](Index index) const {
    return Base::operator[](Checked(index));
  }

 private:
  template <std::integral Index>
  static constexpr std::size_t Checked(Index index) {
    assert(static_cast<std::size_t>(index) < N);
    return static_cast<std::size_t>(index);
  }
};

}  // namespace tr7
