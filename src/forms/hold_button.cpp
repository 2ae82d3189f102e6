#include "forms/hold_button.h"

namespace tr7 {

HoldButton::~HoldButton() {
  if (IsHeld()) held_ = nullptr;
}

bool HoldButton::Hold() {
  if (held_ || !Enabled || !Visible || !MouseDown) return false;
  held_ = this;
  MouseDown();
  return true;
}

void HoldButton::LetGo() {
  if (!IsHeld()) return;
  held_ = nullptr;
  if (MouseUp) MouseUp();
}

void LetGoOfHeldButton() {
  if (HoldButton* held = HoldButton::Held()) held->LetGo();
}

void LetGoOfLostButton() {
  HoldButton* held = HoldButton::Held();
  if (!held) return;
  const View& view = *held->Owner;
  if (!held->Enabled || !held->Visible || !view.Visible || view.Minimised) held->LetGo();
}

}  // namespace tr7
