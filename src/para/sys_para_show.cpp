#include "para/sys_para_show.h"

#include "base/text_helpers.h"
#include "forms/frm_system_para.h"
#include "para/sys_para.h"
#include "platform/doors.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgOfController = 6535;
constexpr int kMsgRefused = 7825, kMsgNone = 5335;

TextBox& FieldOf(std::size_t slot) { return frmSystemPara.Fields[slot - 1].txtSystemPara; }

bool IsFilled(std::size_t slot) { return !FieldOf(slot).Text.empty(); }

using Test = bool (*)(std::size_t slot);

/// The first slot that does not pass, or 0.
std::size_t FirstRefused(Test passes) {
  for (std::size_t slot = 1; slot <= kSysParaSlots; ++slot) {
    if (!passes(slot)) return slot;
  }
  return 0;
}

/// Empty fields come before values out of their range.
Test TestThatFails() { return FirstRefused(IsFilled) != 0 ? IsFilled : SysParaIsInRange; }

}  // namespace

void SysParaHyoji() {
  for (std::size_t slot = 1; slot <= kSysParaSlots; ++slot) {
    FieldOf(slot).Text = PlainDecimal(SysParaRead[slot]);
  }
  MarkSysParaFields();
}

void TorikomiSystemParametaValue() {
  for (std::size_t slot = 1; slot <= kSysParaSlots; ++slot) SysPara[slot] = Val(FieldOf(slot).Text);
}

int SysParaFieldsFilled() { return FirstRefused(IsFilled) == 0 ? 0 : 1; }

void GoToRefusedSysPara() {
  const std::size_t slot = FirstRefused(TestThatFails());
  if (slot != 0) doors.forms->SetFocus(FieldOf(slot));
}

std::string RefusedSysPara() {
  const Test passes = TestThatFails();
  std::string lines;
  for (std::size_t slot = 1; slot <= kSysParaSlots; ++slot) {
    if (passes(slot)) continue;
    const std::string& value = FieldOf(slot).Text;
    lines += Text(kMsgRefused, std::to_string(slot), value.empty() ? Text(kMsgNone) : value,
                  std::to_string(SysParaHighest(slot))) +
             "\n";
  }
  return lines;
}

void MarkSysParaFields() {
  for (std::size_t slot = 1; slot <= kSysParaSlots; ++slot) {
    TextBox& box = FieldOf(slot);
    const bool differs = SysParaKnown && !box.Text.empty() && Val(box.Text) != SysParaRead[slot];
    box.Difference =
        differs ? Text(kMsgOfController, PlainDecimal(SysParaRead[slot])) : std::string();
  }
}

}  // namespace tr7
