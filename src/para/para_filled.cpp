#include <algorithm>
#include <array>

#include "base/text_helpers.h"
#include "para/para_fields.h"
#include "para/para_show.h"

namespace tr7 {
namespace {

bool IsEmpty(const TextBox& box) { return Trim(box.Text).empty(); }
bool IsEmpty(const ComboBox& list) { return list.ListIndex < 0; }

template <typename Fields>
bool AllFilled(const Fields& fields, bool axis_rows, std::size_t axis) {
  return std::none_of(fields.begin(), fields.end(), [&](const auto& field) {
    return IsAxisRow(field.Row) == axis_rows && IsEmpty(ParaControl(field.Place, axis));
  });
}

bool DeviceIsChosen(std::size_t axis) {
  const FrmParameta2& f = frmParameta2;
  return !IsEmpty(f.comboActSize[axis]) && !IsEmpty(f.comboActSpeed[axis]) &&
         !IsEmpty(f.comboActStroke[axis]);
}

bool AxisIsFilled(std::size_t axis) {
  return AllFilled(ParaTextFields(), true, axis) && AllFilled(ParaListFields(), true, axis) &&
         DeviceIsChosen(axis);
}

bool ControllerIsFilled() {
  const auto& options = ParaOptionFields();
  return AllFilled(ParaTextFields(), false, 0) && AllFilled(ParaListFields(), false, 0) &&
         std::all_of(options.begin(), options.end(), [](const ParaOptionField& field) {
           return (frmParameta2.*field.Place).Chosen() >= 0;
         });
}

/// An AXIS that no entry stands for leaves it to the columns.
bool Counts(std::size_t axis) {
  const int last = frmParameta2.comboOneAxis.ListIndex;
  return IsLiveAxis(axis) && (last < 0 || axis <= static_cast<std::size_t>(last));
}

}  // namespace

int ParametaumuKakunin() {
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    if (Counts(axis) && !AxisIsFilled(axis)) return 1;
  }
  return ControllerIsFilled() ? 0 : 1;
}

}  // namespace tr7
