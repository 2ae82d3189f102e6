#include "base/text_helpers.h"
#include "para/para_actuator.h"
#include "para/para_fields.h"
#include "para/para_mm.h"
#include "para/para_show.h"

namespace tr7 {
namespace {

double ListValue(const ParaListField& field, const ComboBox& list) {
  const int index = list.ListIndex;
  if (index < 0 || index >= field.Guard || index >= static_cast<int>(list.ItemData.size())) {
    return 0;
  }
  return list.ItemData[index];
}

void TakeText(const ParaTextField& field, int axis) {
  SetParaValue(ParamSet, field.Row, axis, Val(ParaControl(field.Place, axis).Text));
}

void TakeList(const ParaListField& field, int axis) {
  SetParaValue(ParamSet, field.Row, axis, ListValue(field, ParaControl(field.Place, axis)));
}

void TakeOption(const ParaOptionField& field) {
  const bool first = (frmParameta2.*field.Place)[0].Value;
  SetParaValue(ParamSet, field.Row, 0, first ? field.FirstValue : 1 - field.FirstValue);
}

void TakeAxisRows(int axis) {
  for (const ParaTextField& field : ParaTextFields()) {
    if (IsAxisRow(field.Row)) TakeText(field, axis);
  }
  for (const ParaListField& field : ParaListFields()) {
    if (IsAxisRow(field.Row)) TakeList(field, axis);
  }
  TakeActuator(axis);
}

void TakeControllerRows() {
  for (const ParaTextField& field : ParaTextFields()) {
    if (!IsAxisRow(field.Row) && field.Row != kRowOneAxis) TakeText(field, 0);
  }
  for (const ParaListField& field : ParaListFields()) {
    if (!IsAxisRow(field.Row)) TakeList(field, 0);
  }
  for (const ParaOptionField& field : ParaOptionFields()) TakeOption(field);
  const int mask = MaskOfAxisCount(frmParameta2.comboOneAxis.ListIndex + 1);
  SetParaValue(ParamSet, kRowOneAxis, 0, mask);
}

/// The mm field wins; where it is empty beside pulses, these count.
void TakeLength(const ParaMmField& field, int axis) {
  TextBox& mm = field.MmBox(axis);
  if (Trim(mm.Text).empty()) {
    ShowMmOfPulses(field, axis);
  } else {
    RoundParaMm(field, axis, MmTie::ToEven);
  }
  (ParamSet.*field.Value)[axis] = Val(mm.Text);
  (ParamSet.*field.Text)[axis] = mm.Text;
  SetParaValue(ParamSet, field.Row, axis, Val(field.PulseBox(axis).Text));
}

}  // namespace

void TorikomiParametaValue() {
  for (const int axis : AxisList(LiveAxisMask())) TakeAxisRows(axis);
  TakeControllerRows();
  for (const int axis : AxisList(LiveAxisMask())) {
    for (const ParaMmField& field : ParaMmFields()) TakeLength(field, axis);
  }
}

}  // namespace tr7
