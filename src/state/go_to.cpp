#include "state/go_to.h"

#include <string>

#include "base/text_helpers.h"
#include "forms/frm_go_to.h"
#include "platform/doors.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {

std::optional<int> AskLineNumber(int first, int last) {
  constexpr int kAsk = 5612, kNone = 5613;
  FrmGoTo& f = frmGoTo;
  const std::string from = std::to_string(first), to = std::to_string(last);
  std::optional<int> number;
  HandlersForOnce handlers;
  handlers.Set(f.Load, [&] {
    frmGoTo.lblNumber.Caption = Text(kAsk, from, to);
    frmGoTo.txtNumber.Text.clear();
  });
  handlers.Set(f.cmdOk.Click, [&] {
    const std::string typed = Trim(frmGoTo.txtNumber.Text);
    const auto line = static_cast<int>(Val(typed));
    if (line >= first && line <= last) {
      number = line;
    } else if (!typed.empty()) {
      MsgBox(Text(kNone, typed, from, to));
      doors.forms->SetFocus(frmGoTo.txtNumber);
      return;
    }
    frmGoTo.Visible = false;
  });
  handlers.Set(f.cmdCancel.Click, [] { frmGoTo.Visible = false; });
  ShowViewModal(f);
  return number;
}

}  // namespace tr7
