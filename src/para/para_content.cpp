#include "para/para_content.h"

#include <string>

#include "forms/frm_parameta2.h"

namespace tr7 {
namespace {

/// All that a user can change, but for the switch that unlocks the SP group.
std::string Content() {
  std::string content;
  for (const Control* control : frmParameta2.Controls) {
    if (const auto* box = dynamic_cast<const TextBox*>(control)) content += box->Text;
    if (const auto* list = dynamic_cast<const ComboBox*>(control)) content += list->Text();
    if (const auto* option = dynamic_cast<const OptionButton*>(control)) {
      content += option->Value ? '1' : '0';
    }
    content += '\n';
  }
  return content;
}

}  // namespace

void MarkParaSaved() { frmParameta2.SavedContent = Content(); }

void MarkParaUnsaved() { frmParameta2.SavedContent.clear(); }

bool ParaIsChanged() { return frmParameta2.SavedContent != Content(); }

}  // namespace tr7
