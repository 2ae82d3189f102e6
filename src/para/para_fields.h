#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "forms/frm_parameta2.h"
#include "para/param_set.h"

namespace tr7 {

// Which control of the parameter view holds which row of `ParamSet`, and what it takes.

/// One control an axis, or one for the whole controller.
template <typename Kind>
using ParaControlPlace = std::variant<PerAxis<Kind> FrmParameta2::*, Kind FrmParameta2::*>;

/// The control of this axis (0 to 3); the axis does not matter where the controller has one.
template <typename Kind>
Kind& ParaControl(const ParaControlPlace<Kind>& place, int axis) {
  if (const auto* single = std::get_if<Kind FrmParameta2::*>(&place))
    return frmParameta2.*(*single);
  return (frmParameta2.*std::get<PerAxis<Kind> FrmParameta2::*>(place))[axis];
}

/// A whole number.
struct ParaTextField {
  int Row;
  ParaControlPlace<TextBox> Place;
  int MaxLength;     ///< characters; 0: never typed into
  double Low, High;  ///< what may be left in the field; `Low` above `High`: anything
  bool HasRange() const { return Low <= High; }
};
const std::vector<ParaTextField>& ParaTextFields();

/// A choice whose values count from 0.
struct ParaListField {
  int Row;
  ParaControlPlace<ComboBox> Place;
  int Guard;  ///< an index from here on is taken as 0
  std::vector<MsgId> Entries;
};
const std::vector<ParaListField>& ParaListFields();

/// A choice between two, stored as 0 or 1.
struct ParaOptionField {
  int Row;
  OptionGroup<2> FrmParameta2::*Place;
  int FirstValue;  ///< what the first option stands for
};
const std::vector<ParaOptionField>& ParaOptionFields();

/// A length in mm beside its field in pulses.
struct ParaMmField {
  int Row;
  PerAxis<TextBox> FrmParameta2::*Mm;
  PerAxis<TextBox> FrmParameta2::*Pulses;
  ParamSetRecord::PerAxis<double> ParamSetRecord::*Value;
  ParamSetRecord::PerAxis<std::string> ParamSetRecord::*Text;
  TextBox& MmBox(int axis) const { return (frmParameta2.*Mm)[axis]; }
  TextBox& PulseBox(int axis) const { return (frmParameta2.*Pulses)[axis]; }
};
/// STROKE, ZONE1, ZONE2.
const std::vector<ParaMmField>& ParaMmFields();

inline constexpr int kParaMmChars = 7;
inline constexpr int kFirstSpRow = 25;  ///< from here on rows are locked in the ordinary case

/// The axis mask of the first `count` axes (1 to 4), and the count of such a mask; 0 of any other.
int MaskOfAxisCount(int count);
int AxisCountOfMask(int mask);

}  // namespace tr7
