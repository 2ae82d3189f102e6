#include "para/para_axis_show.h"

#include <cmath>
#include <string>

#include "base/text_helpers.h"
#include "para/para_actuator.h"
#include "para/para_mm.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgAxisCounts = 6061;  ///< the entry for one axis; those for more follow

void FillEntries(const ParaListField& field, ComboBox& list) {
  list.Clear();
  for (const MsgId id : field.Entries) list.AddItem(Text(id), static_cast<int>(list.List.size()));
}

/// Calls `use(axis)` once for each control of a row.
template <typename Use>
void ForControls(int row, Use use) {
  for (int axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) use(axis);
}

}  // namespace

void ShowParaText(const ParaTextField& field, int axis) {
  const double value = ParaValue(ParamSet, field.Row, axis);
  ParaControl(field.Place, axis).Text = PlainDecimal(std::nearbyint(value));
}

void ShowParaList(const ParaListField& field, int axis) {
  ComboBox& list = ParaControl(field.Place, axis);
  FillEntries(field, list);
  const int value = static_cast<int>(ParaValue(ParamSet, field.Row, axis));
  const int entries = static_cast<int>(field.Entries.size());
  list.ListIndex = value >= 0 && value < entries ? value : -1;
  if (value >= entries && entries < field.Guard) {
    list.AddItem(std::to_string(value), value);
    list.ListIndex = entries;
  }
}

void ShowParaOption(const ParaOptionField& field) {
  OptionGroup<2>& group = frmParameta2.*field.Place;
  const double value = ParaValue(ParamSet, field.Row, 0);
  group.Clear();
  if (value == 0 || value == 1) group[value == field.FirstValue ? 0 : 1].Choose();
}

void ShowParaAxisMask() {
  frmParameta2.txtOneAxis.Text = std::to_string(ParamSet.OneAxis);
  frmParameta2.comboOneAxis.ListIndex = AxisCountOfMask(ParamSet.OneAxis) - 1;
}

void ShowParaAxis(int axis) {
  for (const ParaTextField& field : ParaTextFields()) {
    if (IsAxisRow(field.Row)) ShowParaText(field, axis);
  }
  for (const ParaListField& field : ParaListFields()) {
    if (IsAxisRow(field.Row)) ShowParaList(field, axis);
  }
  for (const ParaMmField& field : ParaMmFields()) ShowMmOfPulses(field, axis);
  ShowActuator(axis);
}

void ClearParaAxis(int axis) {
  for (const ParaTextField& field : ParaTextFields()) {
    if (IsAxisRow(field.Row)) ParaControl(field.Place, axis).Text.clear();
  }
  for (const ParaListField& field : ParaListFields()) {
    if (IsAxisRow(field.Row)) ParaControl(field.Place, axis).ListIndex = -1;
  }
  for (const ParaMmField& field : ParaMmFields()) field.MmBox(axis).Text.clear();
  ClearActuator(axis);
}

void FillParaLists() {
  for (const ParaListField& field : ParaListFields()) {
    ForControls(field.Row, [&](int axis) { FillEntries(field, ParaControl(field.Place, axis)); });
  }
  ComboBox& axes = frmParameta2.comboOneAxis;
  axes.Clear();
  for (int count = 1; count <= kAxes; ++count)
    axes.AddItem(Text(MsgId::At(kMsgAxisCounts, count - 1)), count);
}

}  // namespace tr7
