#include "para/stroke_calc.h"

#include <array>
#include <string>

#include "base/text_helpers.h"
#include "device/unit_conversion.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_stroke_calc.h"
#include "para/param_set.h"
#include "platform/doors.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgStrokePrompt = 6086, kMsgLeadPrompt = 6087;
constexpr int kMsgInvalid = 6092, kMsgNoDevice = 6093, kMsgOutOfRange = 5943;
constexpr double kPprFirst = 400, kPprOther = 192;
constexpr int kStrokeDigits = 3, kLeadDigits = 2;

bool IsStroke(double mm) { return mm >= 25 && mm <= 600; }

bool IsLead(double mm) { return mm == 2 || mm == 4 || mm == 6 || mm == 8 || mm == 12; }

/// The field is named with what it takes, and gets the focus.
void Refuse(TextBox& box, const Label& name) {
  frmStrokeCalc.lblStrokePulse.Caption = Text(kMsgInvalid);
  MsgBox(Text(kMsgOutOfRange, name.Caption, box.Prompt));
  doors.forms->SetFocus(box);
}

void CulStrokePulse() {
  FrmStrokeCalc& f = frmStrokeCalc;
  const double stroke = Val(f.txtCulStroke.Text), lead = Val(f.txtCulLead.Text);
  if (!IsStroke(stroke)) return Refuse(f.txtCulStroke, f.lblCulStroke);
  if (!IsLead(lead)) return Refuse(f.txtCulLead, f.lblCulLead);
  const auto pulses = StrokeToPulse(stroke, lead, f.optActType[0].Value ? kPprFirst : kPprOther);
  f.lblStrokePulse.Caption = pulses ? std::to_string(*pulses) : Text(kMsgInvalid);
}

/// From AXIS2 the focus goes to the lead of AXIS3: that is how this dialogue has always worked.
Control& FieldBehind(int axis) {
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
  frmParameta2.txtAxisStroke[axis].Type(result);
  f.NextFocus = &FieldBehind(axis);
  f.Visible = false;
}

void LoadCalc() {
  FrmStrokeCalc& f = frmStrokeCalc;
  f.NextFocus = nullptr;
  f.optActType[0].Choose();
  f.txtCulStroke.Text.clear();
  f.txtCulLead.Text.clear();
  f.txtCulStroke.Prompt = Text(kMsgStrokePrompt);
  f.txtCulLead.Prompt = Text(kMsgLeadPrompt);
  f.lblStrokePulse.Caption.clear();
  f.optInputSaki.Clear();
  for (int axis = 0; axis < kAxes; ++axis) {
    f.optInputSaki[axis].Enabled = IsLiveAxis(axis);
    if (IsLiveAxis(axis) && f.optInputSaki.Chosen() < 0) f.optInputSaki[axis].Choose();
  }
}

}  // namespace

void ShowStrokeCalc() {
  ShowViewModal(frmStrokeCalc);
  if (frmStrokeCalc.NextFocus) doors.forms->SetFocus(*frmStrokeCalc.NextFocus);
}

void InstallStrokeCalc() {
  FrmStrokeCalc& f = frmStrokeCalc;
  f.Load = LoadCalc;
  f.txtCulStroke.MaxLength = kStrokeDigits;
  f.txtCulLead.MaxLength = kLeadDigits;
  f.cmdCulStrokePulse.Click = CulStrokePulse;
  f.cmdInputStroke.Click = InputStroke;
  f.cmdClose.Click = [] { frmStrokeCalc.Visible = false; };
}

}  // namespace tr7
