#include "para/sys_para_show.h"

#include <algorithm>

#include "base/text_helpers.h"
#include "forms/frm_system_para.h"
#include "para/sys_para.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgOfController = 6535;

TextBox& FieldOf(std::size_t slot) { return frmSystemPara.Fields[slot - 1].txtSystemPara; }

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

int SysParaFieldsFilled() {
  const auto& fields = frmSystemPara.Fields.items;
  return std::all_of(fields.begin(), fields.end(),
                     [](const SysParaField& field) { return !field.txtSystemPara.Text.empty(); })
             ? 0
             : 1;
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
