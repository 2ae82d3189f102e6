#pragma once

#include <array>
#include <cstddef>

#include "base/bool16.h"
#include "base/indexed_array.h"

namespace tr7 {

inline constexpr int kAxes = 4;

/// One value for each axis, by index 0 to 3 for AXIS1 to AXIS4.
template <typename T>
using AxisArray = IndexedArray<T, kAxes>;

inline constexpr int kAllAxes = (1 << kAxes) - 1;  ///< the mask of all axes

/// True when a mask (axis index i: 1 << i) holds the axis.
constexpr bool InMask(int mask, int axis) { return (mask >> axis & 1) != 0; }

/// The mask of the axes that are in use by their flags of being not in use, and the reverse.
constexpr int MaskOfMuko(const AxisArray<Bool16>& muko) {
  int mask = 0;
  for (int axis = 0; axis < kAxes; ++axis) mask |= muko[axis] ? 0 : 1 << axis;
  return mask;
}
constexpr AxisArray<Bool16> MukoOfMask(int mask) {
  AxisArray<Bool16> muko{};
  for (int axis = 0; axis < kAxes; ++axis) muko[axis] = !InMask(mask, axis);
  return muko;
}

/// The indexes of some axes in rising order, to walk over. It is a copy: what is walked over may
/// change meanwhile.
class AxisList {
 public:
  constexpr explicit AxisList(int mask) {
    for (int axis = 0; axis < kAxes; ++axis) {
      if (InMask(mask, axis)) axes_[count_++] = axis;
    }
  }
  constexpr const int* begin() const { return axes_.data(); }
  constexpr const int* end() const { return axes_.data() + count_; }
  constexpr int size() const { return static_cast<int>(count_); }
  constexpr bool empty() const { return count_ == 0; }

 private:
  std::array<int, kAxes> axes_{};
  std::size_t count_ = 0;
};

}  // namespace tr7
