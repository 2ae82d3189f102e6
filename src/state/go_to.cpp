#include "state/go_to.h"

#include <string>

#include "base/text_helpers.h"
#include "forms/frm_go_to.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {

std::optional<int> AskLineNumber(int first, int last) {
  constexpr int kAsk = 5612, kNone = 5613;
  FrmGoTo& f = frmGoTo;
  bool accepted = false;
  HandlersForOnce handlers;
  handlers.Set(f.Load, [=] {
    frmGoTo.lblNumber.Caption = Text(kAsk, std::to_string(first), std::to_string(last));
    frmGoTo.txtNumber.Text.clear();
  });
  handlers.Set(f.cmdOk.Click, [&] {
    accepted = true;
    frmGoTo.Visible = false;
  });
  handlers.Set(f.cmdCancel.Click, [] { frmGoTo.Visible = false; });
  ShowViewModal(f);
  if (!accepted || Trim(f.txtNumber.Text).empty()) return std::nullopt;
  const auto number = static_cast<int>(Val(f.txtNumber.Text));
  if (number >= first && number <= last) return number;
  TellInStatusPanel(Text(kNone, f.txtNumber.Text));
  return std::nullopt;
}

}  // namespace tr7
