#include "para/stroke_calc.h"

#include <array>
#include <string>

#include "base/text_helpers.h"
#include "device/unit_conversion.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_stroke_calc.h"
#include "para/param_set.h"
#include "platform/doors.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgStrokePrompt = 6086, kMsgLeadPrompt = 6087;
constexpr int kMsgInvalid = 6092, kMsgNoDevice = 6093;
constexpr double kPprFirst = 400, kPprOther = 192;
constexpr int kStrokeDigits = 3, kLeadDigits = 2;

/// Narrow on purpose: a lead of any other kind is computed with, whatever the prompt asks for.
bool IsRefused(const std::string& stroke, const std::string& lead) {
  const double value = Val(lead);
  const bool usual_lead = value == 2 || value == 6 || value == 8;
  return stroke.empty() || (lead.empty() && !usual_lead);
}

void CulStrokePulse() {
  FrmStrokeCalc& f = frmStrokeCalc;
  const double ppr = f.optActType[0].Value ? kPprFirst : kPprOther;
  const auto pulses = StrokeToPulse(Val(f.txtCulStroke.Text), Val(f.txtCulLead.Text), ppr);
  const bool good = !IsRefused(f.txtCulStroke.Text, f.txtCulLead.Text) && pulses;
  f.lblStrokePulse.Caption = good ? std::to_string(*pulses) : Text(kMsgInvalid);
}

/// From AXIS2 the focus goes to the lead of AXIS3: that is how this dialogue has always worked.
Control& FieldBehind(std::size_t axis) {
  FrmParameta2& f = frmParameta2;
  const std::array<Control*, kAxes> next = {&f.txtAxisStroke[1], &f.txtAxisLead[2],
                                            &f.txtAxisStroke[3], &f.txtAxisLead[0]};
  return *next.at(axis);
}

void InputStroke() {
  FrmStrokeCalc& f = frmStrokeCalc;
  const std::string& result = f.lblStrokePulse.Caption;
  const int axis = f.optInputSaki.Chosen();
  if (result.empty() || result == Text(kMsgInvalid) || result == Text(kMsgNoDevice) || axis < 0) {
    doors.forms->Beep();
    return;
  }
  const auto index = static_cast<std::size_t>(axis);
  frmParameta2.txtAxisStroke[index].Type(result);
  f.NextFocus = &FieldBehind(index);
  f.Visible = false;
}

void LoadCalc() {
  FrmStrokeCalc& f = frmStrokeCalc;
  f.NextFocus = nullptr;
  f.optActType[0].Choose();
  f.txtCulStroke.Text = Text(kMsgStrokePrompt);
  f.txtCulLead.Text = Text(kMsgLeadPrompt);
  f.lblStrokePulse.Caption.clear();
  f.optInputSaki.Clear();
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    f.optInputSaki[axis].Enabled = IsLiveAxis(axis);
    if (IsLiveAxis(axis) && f.optInputSaki.Chosen() < 0) f.optInputSaki[axis].Choose();
  }
}

/// A prompt gives way to what is typed.
void InstallField(TextBox& box, MsgId prompt, int digits) {
  box.MaxLength = digits;
  box.GotFocus = [&box, prompt] {
    if (box.Text == Text(prompt)) box.Text.clear();
  };
}

}  // namespace

void ShowStrokeCalc() {
  ShowViewModal(frmStrokeCalc);
  if (frmStrokeCalc.NextFocus) doors.forms->SetFocus(*frmStrokeCalc.NextFocus);
}

void InstallStrokeCalc() {
  FrmStrokeCalc& f = frmStrokeCalc;
  f.Load = LoadCalc;
  InstallField(f.txtCulStroke, kMsgStrokePrompt, kStrokeDigits);
  InstallField(f.txtCulLead, kMsgLeadPrompt, kLeadDigits);
  f.cmdCulStrokePulse.Click = CulStrokePulse;
  f.cmdInputStroke.Click = InputStroke;
  f.cmdClose.Click = [] { frmStrokeCalc.Visible = false; };
}

}  // namespace tr7
