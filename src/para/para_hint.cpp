#include "para/para_hint.h"

#include "base/text_helpers.h"
#include "forms/frm_parameta2.h"
#include "platform/doors.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgRange = 6068;
constexpr int kMsgNameAndRange = 6355;
constexpr int kMsgUndoBringsBack = 6339;

}  // namespace

std::string ParaRangeText(const std::string& low, const std::string& high) {
  return Text(kMsgRange, low, high);
}

std::string ParaFieldName(const Control& control, bool per_axis, int axis) {
  const auto& controls = frmParameta2.Controls;
  std::string row;
  for (const Control* other : controls) {
    if (other == &control) break;
    if (dynamic_cast<const Label*>(other)) row = other->Caption;
  }
  return per_axis ? frmParameta2.lblAxis[axis].Caption + " " + row : row;
}

void ParaFieldEntered(const TextBox& box, const std::string& hint) {
  frmParameta2.EnteredText = box.Text;
  if (!frmParameta2.RefusalShown) TellInStatusPanel(hint);
  frmParameta2.RefusalShown = false;
}

void ParaFieldLeft() { TellInStatusPanel({}); }

void EmptyParaField(TextBox& box) {
  // A field that was emptied before has still the text of before that.
  const std::string entered = Trim(frmParameta2.EnteredText);
  if (!entered.empty()) frmParameta2.FormerTexts[box.Name] = entered;
  box.Text.clear();
}

void RefuseParaField(TextBox& box, const std::string& name, const std::string& range) {
  EmptyParaField(box);
  doors.forms->Beep();
  const std::string words = Text(kMsgNameAndRange, name, range);
  const auto former = frmParameta2.FormerTexts.find(box.Name);
  const bool restorable = former != frmParameta2.FormerTexts.end();
  TellInStatusPanel(restorable ? Text(kMsgUndoBringsBack, words, former->second) : words);
  frmParameta2.RefusalShown = true;
}

bool RestoreParaField(TextBox& box) {
  const auto former = frmParameta2.FormerTexts.find(box.Name);
  if (!box.Text.empty() || former == frmParameta2.FormerTexts.end()) return false;
  box.Text = former->second;
  frmParameta2.FormerTexts.erase(former);
  if (box.Change) box.Change();
  return true;
}

}  // namespace tr7
