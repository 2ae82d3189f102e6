#include "para/para_filled.h"

#include <algorithm>
#include <utility>

#include "base/text_helpers.h"
#include "para/para_fields.h"
#include "para/para_hint.h"
#include "para/para_show.h"

namespace tr7 {
namespace {

bool IsEmpty(const TextBox& box) { return Trim(box.Text).empty(); }
bool IsEmpty(const ComboBox& list) { return list.ListIndex < 0; }

/// Gathers the empty fields: their names, and the first in the order of the Tab key.
class FirstEmpty {
 public:
  void Add(Control& control, bool per_axis, int axis) {
    names_ += ParaFieldName(control, per_axis, axis) + "\n";
    ++count_;
    const auto& controls = frmParameta2.Controls;
    const auto place = std::find(controls.begin(), controls.end(), &control) - controls.begin();
    if (first_.Field && place >= place_) return;
    place_ = place;
    first_ = {&control, ParaFieldName(control, per_axis, axis), {}};
  }
  template <typename Kind>
  void AddIfEmpty(Kind& control, bool per_axis, int axis = 0) {
    if (IsEmpty(control)) Add(control, per_axis, axis);
  }
  MissingParaField First() const {
    return {first_.Field, first_.Name, count_ > 1 ? names_ : std::string()};
  }

 private:
  MissingParaField first_;
  std::string names_;
  int count_ = 0;
  std::ptrdiff_t place_ = 0;
};

/// The field that is typed into: pulses that are never typed follow the field in mm.
TextBox& TypedBox(const ParaTextField& field, int axis) {
  if (field.MaxLength == 0) {
    for (const ParaMmField& mm : ParaMmFields()) {
      if (mm.Row == field.Row) return mm.MmBox(axis);
    }
  }
  return ParaControl(field.Place, axis);
}

void AddTexts(FirstEmpty& empty, bool per_axis, int axis) {
  for (const ParaTextField& field : ParaTextFields()) {
    if (IsAxisRow(field.Row) != per_axis || !IsEmpty(ParaControl(field.Place, axis))) continue;
    empty.Add(TypedBox(field, axis), per_axis, axis);
  }
}

void AddLists(FirstEmpty& empty, bool per_axis, int axis) {
  for (const ParaListField& field : ParaListFields()) {
    if (IsAxisRow(field.Row) != per_axis) continue;
    empty.AddIfEmpty(ParaControl(field.Place, axis), per_axis, axis);
  }
}

void AddAxis(FirstEmpty& empty, int axis) {
  FrmParameta2& f = frmParameta2;
  AddTexts(empty, true, axis);
  AddLists(empty, true, axis);
  for (ComboBox* list : {&f.comboActSize[axis], &f.comboActSpeed[axis], &f.comboActStroke[axis]}) {
    empty.AddIfEmpty(*list, true, axis);
  }
}

void AddController(FirstEmpty& empty) {
  AddTexts(empty, false, 0);
  AddLists(empty, false, 0);
  for (const ParaOptionField& field : ParaOptionFields()) {
    OptionGroup<2>& group = frmParameta2.*field.Place;
    if (group.Chosen() < 0) empty.Add(group[0], false, 0);
  }
}

/// An AXIS that no entry stands for leaves it to the columns.
bool Counts(int axis) {
  const int last = frmParameta2.comboOneAxis.ListIndex;
  return IsLiveAxis(axis) && (last < 0 || axis <= last);
}

}  // namespace

MissingParaField FirstMissingParaField() {
  FirstEmpty empty;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (Counts(axis)) AddAxis(empty, axis);
  }
  AddController(empty);
  return empty.First();
}

int ParametaumuKakunin() { return FirstMissingParaField().Field ? 1 : 0; }

}  // namespace tr7
