#include "para/para_typing.h"

#include <algorithm>
#include <string>

#include "base/text_helpers.h"
#include "para/para_fields.h"
#include "para/para_hint.h"
#include "para/para_mm.h"
#include "para/para_mm_typing.h"
#include "platform/doors.h"

namespace tr7 {
namespace {

constexpr const char* kDigits = "0123456789";
constexpr const char* kOrderDigits = "123456789";
constexpr int kRowSeq = 6;

std::string RangeOf(const ParaTextField& field) {
  if (!field.HasRange()) return {};
  return ParaRangeText(PlainDecimal(field.Low), PlainDecimal(field.High));
}

void FieldLeft(const ParaTextField& field, int axis) {
  TextBox& box = ParaControl(field.Place, axis);
  const double value = Val(box.Text);
  if (!box.Text.empty() && field.HasRange() && (value < field.Low || value > field.High)) {
    RefuseParaField(box, ParaFieldName(box, IsAxisRow(field.Row), axis), RangeOf(field));
    if (box.Change) box.Change();
  } else {
    ParaFieldLeft();
  }
  if (field.Row == kRowLead || field.Row == kRowPulse) LengthsFollowScale(axis);
}

void InstallField(const ParaTextField& field, int axis) {
  TextBox& box = ParaControl(field.Place, axis);
  box.MaxLength = field.MaxLength;
  box.AllowedChars = field.Row == kRowSeq ? kOrderDigits : kDigits;
  box.GotFocus = [&box, &field] { ParaFieldEntered(box, RangeOf(field)); };
  box.LostFocus = [&field, axis] { FieldLeft(field, axis); };
}

bool TakesEnter(const Control* control) {
  return dynamic_cast<const TextBox*>(control) || dynamic_cast<const ComboBox*>(control);
}

/// The next field in the order of the Tab key that can be used, the first one behind the last.
void GoToNextField(const Control& from) {
  const auto& controls = frmParameta2.Controls;
  const auto here = std::find(controls.begin(), controls.end(), &from) - controls.begin();
  const auto count = static_cast<std::ptrdiff_t>(controls.size());
  for (std::ptrdiff_t step = 1; step < count; ++step) {
    Control* control = controls[(here + step) % count];
    if (!control->Enabled || !control->Visible || !TakesEnter(control)) continue;
    doors.forms->SetFocus(*control);
    return;
  }
}

}  // namespace

void InstallParaTyping() {
  for (const ParaTextField& field : ParaTextFields()) {
    if (field.MaxLength == 0) continue;
    for (int axis = 0; axis < (IsAxisRow(field.Row) ? kAxes : 1); ++axis) {
      InstallField(field, axis);
    }
  }
  InstallParaMmTyping();
  for (Control* control : frmParameta2.Controls) {
    if (auto* box = dynamic_cast<TextBox*>(control)) {
      box->Enter = [box] { GoToNextField(*box); };
      box->Undo = [box] { return RestoreParaField(*box); };
    }
  }
}

}  // namespace tr7
