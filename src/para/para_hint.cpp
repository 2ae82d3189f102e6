#include "para/para_hint.h"

#include "forms/frm_parameta2.h"
#include "platform/doors.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgRange = 6068;
constexpr int kMsgNameAndRange = 6355;

}  // namespace

std::string ParaRangeText(const std::string& low, const std::string& high) {
  return Text(kMsgRange, low, high);
}

void ParaFieldEntered(const std::string& hint) {
  if (!frmParameta2.RefusalShown) TellInStatusPanel(hint);
  frmParameta2.RefusalShown = false;
}

void ParaFieldLeft() { TellInStatusPanel({}); }

void RefuseParaField(TextBox& box, const std::string& name, const std::string& range) {
  box.Text.clear();
  doors.forms->Beep();
  TellInStatusPanel(Text(kMsgNameAndRange, name, range));
  frmParameta2.RefusalShown = true;
}

}  // namespace tr7
