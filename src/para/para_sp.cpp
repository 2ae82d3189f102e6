#include "para/para_sp.h"

#include <string>

#include "base/text_helpers.h"
#include "para/para_columns.h"
#include "para/para_fields.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

void SpSwitchClicked() {
  CheckBox& box = frmParameta2.chkTokuParaChange;
  if (box.Value && !AskYesWarned(TwoLines(671, 672))) box.Value = false;
  EnableParaControls();
}

int ChosenCount() { return frmParameta2.comboOneAxis.ListIndex + 1; }

void ShowMask(int mask) {
  frmParameta2.comboOneAxis.ListIndex = AxisCountOfMask(mask) - 1;
  frmParameta2.txtOneAxis.Text = std::to_string(mask);
}

void ListPicked() { ShowMask(MaskOfAxisCount(ChosenCount())); }

void NumberTyped() {
  const double mask = Val(frmParameta2.txtOneAxis.Text);
  frmParameta2.comboOneAxis.ListIndex = AxisCountOfMask(static_cast<int>(mask)) - 1;
}

/// The columns follow AXIS once the user has confirmed it; without that AXIS goes back.
void AxisLeft() {
  const int count = ChosenCount();
  const int mask = MaskOfAxisCount(count);
  const int shown = ParaFlags.ShownAxisCount;
  const int settled = shown > 0 ? MaskOfAxisCount(shown) : ParamSet.OneAxis;
  if (mask == 0 || (mask == settled && mask == LiveAxisMask())) return;
  if (MsgBox(Text(630), MsgButtons::OkCancel, MsgIcon::Question) == MsgAnswer::Ok) {
    YukoJikuHyojiSettei2(count);
  } else {
    ShowMask(settled);
  }
}

}  // namespace

void InstallParaSp() {
  FrmParameta2& f = frmParameta2;
  f.chkTokuParaChange.Click = SpSwitchClicked;
  f.comboOneAxis.Click = ListPicked;
  f.comboOneAxis.LostFocus = AxisLeft;
  f.txtOneAxis.Change = NumberTyped;
  // The rules of a typed field stand already; leaving this one may also ask about the columns.
  f.txtOneAxis.LostFocus = [left = f.txtOneAxis.LostFocus] {
    if (left) left();
    AxisLeft();
  };
}

}  // namespace tr7
