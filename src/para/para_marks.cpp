#include "para/para_marks.h"

#include <cmath>
#include <string>

#include "base/text_helpers.h"
#include "device/unit_conversion.h"
#include "forms/frm_system_para.h"
#include "para/para_fields.h"
#include "para/para_mm.h"
#include "para/para_transfer_commands.h"
#include "para/para_value_text.h"
#include "para/sys_para.h"
#include "para/sys_para_show.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgOfController = 6535;

const ParamSetRecord& Known() { return ParaOfCt.Set; }

bool IsKnown(bool per_axis, int axis) {
  return ParaOfCt.Known && (!per_axis || (InMask(ParaOfCt.AxisMask, axis) && IsLiveAxis(axis)));
}

double KnownValue(int row, int axis) { return std::nearbyint(ParaValue(Known(), row, axis)); }

void Mark(Control& control, bool known, const std::string& here, const std::string& there) {
  const bool differs = known && Trim(here) != Trim(there);
  control.Difference = differs ? Text(kMsgOfController, Trim(there)) : std::string();
}

/// What a field holds, in the form of the value that it is compared with.
template <typename Form>
std::string Formed(const TextBox& box, Form form) {
  return Trim(box.Text).empty() ? std::string() : form(Val(box.Text));
}

void MarkText(const ParaTextField& field, int axis) {
  TextBox& box = ParaControl(field.Place, axis);
  const std::string there = PlainDecimal(KnownValue(field.Row, axis));
  Mark(box, IsKnown(IsAxisRow(field.Row), axis), Formed(box, PlainDecimal), there);
}

void MarkList(const ParaListField& field, int axis) {
  ComboBox& list = ParaControl(field.Place, axis);
  Mark(list, IsKnown(IsAxisRow(field.Row), axis), list.Text(),
       ParaValueText(Known(), field.Row, axis));
}

/// The option that is on, or both where none is.
void MarkOptions(const ParaOptionField& field) {
  OptionGroup<2>& group = frmParameta2.*field.Place;
  const int there = KnownValue(field.Row, 0) == field.FirstValue ? 0 : 1;
  for (OptionButton& option : group) {
    const bool counts = option.Value || group.Chosen() < 0;
    const std::string here = option.Value ? option.Caption : std::string();
    Mark(option, counts && IsKnown(false, 0), here, group[there].Caption);
  }
}

void MarkLength(const ParaMmField& field, int axis) {
  const auto mm =
      PulseToMm(Known().AxisLead[axis], Known().AxisPulse[axis], KnownValue(field.Row, axis));
  TextBox& box = field.MmBox(axis);
  Mark(box, mm && IsKnown(true, axis), Formed(box, ParaMmText), ParaMmText(mm.value_or(0)));
}

void MarkDevice(int axis) {
  FrmParameta2& f = frmParameta2;
  const bool known = IsKnown(true, axis);
  Mark(f.comboActSize[axis], known, f.comboActSize[axis].Text(), Known().ActSize[axis]);
  Mark(f.comboActSpeed[axis], known, f.comboActSpeed[axis].Text(), Known().ActSpeed[axis]);
  Mark(f.comboActStroke[axis], known, f.comboActStroke[axis].Text(),
       std::to_string(Known().ActStroke[axis]));
  Mark(f.txtActuator[axis], known, f.txtActuator[axis].Text, Known().Actuator[axis]);
}

void MarkAxisList() {
  ComboBox& list = frmParameta2.comboOneAxis;
  Mark(list, IsKnown(false, 0), list.Text(), ParaValueText(Known(), kRowOneAxis, 0));
}

template <typename Field>
void ForControlsOf(const std::vector<Field>& fields, void (*mark)(const Field&, int axis)) {
  for (const Field& field : fields) {
    for (int axis = 0; axis < (IsAxisRow(field.Row) ? kAxes : 1); ++axis) mark(field, axis);
  }
}

void AlsoMark(Handler<void()>& handler) {
  handler = [own = handler] {
    if (own) own();
    MarkParaFields();
  };
}

}  // namespace

void MarkParaFields() {
  ForControlsOf(ParaTextFields(), MarkText);
  ForControlsOf(ParaListFields(), MarkList);
  ForControlsOf(ParaMmFields(), MarkLength);
  for (const ParaOptionField& field : ParaOptionFields()) MarkOptions(field);
  for (int axis = 0; axis < kAxes; ++axis) MarkDevice(axis);
  MarkAxisList();
}

void ForgetWhatCtHeld() {
  ParaOfCt = {};
  SysParaRead = {};
  SysParaKnown = False;
  if (frmParameta2.Loaded) MarkParaFields();
  if (frmSystemPara.Loaded) MarkSysParaFields();
}

void InstallParaMarks() {
  for (Control* control : frmParameta2.Controls) {
    if (auto* box = dynamic_cast<TextBox*>(control)) {
      AlsoMark(box->Change);
      AlsoMark(box->LostFocus);
    }
    if (auto* list = dynamic_cast<ComboBox*>(control)) {
      AlsoMark(list->Click);
      AlsoMark(list->LostFocus);
    }
    if (auto* option = dynamic_cast<OptionButton*>(control)) AlsoMark(option->Click);
  }
}

}  // namespace tr7
