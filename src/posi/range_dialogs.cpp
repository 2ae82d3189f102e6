#include "posi/range_dialogs.h"

#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_select_posi_no.h"
#include "platform/doors.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kProposedLast = 15;

struct NumberRange {
  int first;
  int last;
};

/// What a dialogue of this family shows and takes.
struct RangeForm {
  SelectPosiNoView& view;
  NumberRange bounds;    ///< numbers outside are refused
  NumberRange proposed;  ///< shown at first
  bool offers_all;
  bool has_numbers;
};

void ShowNumbers(const RangeForm& form) {
  SelectPosiNoView& view = form.view;
  const bool ranged = form.has_numbers;
  view.lblMessage.Visible = !ranged;
  view.lblMessage.Caption = ranged ? std::string() : Text(342);
  view.optAll.Visible = view.optRange.Visible = form.offers_all;
  for (Control* control : std::initializer_list<Control*>{&view.lblFromNo, &view.txtFromNo,
                                                          &view.lblToNo, &view.txtToNo}) {
    control->Visible = ranged;
    control->Enabled = !form.offers_all || view.optRange.Value;
  }
}

/// The typed range; false when it is none.
bool TypedRange(const RangeForm& form, NumberRange& range) {
  if (form.offers_all && form.view.optAll.Value) {
    range = {1, kPosiMaxNo};
    return true;
  }
  range = {static_cast<int>(Val(form.view.txtFromNo.Text)),
           static_cast<int>(Val(form.view.txtToNo.Text))};
  return range.first >= form.bounds.first && range.last <= form.bounds.last &&
         range.first <= range.last;
}

bool Ask(const RangeForm& form) {
  SelectPosiNoView& view = form.view;
  bool accepted = false;
  HandlersForOnce handlers;
  handlers.Set(view.Load, [&form, &view] {
    view.optRange.Choose();
    view.txtFromNo.Text = std::to_string(form.proposed.first);
    view.txtToNo.Text = std::to_string(form.proposed.last);
    ShowNumbers(form);
  });
  handlers.Set(view.optAll.Click, [&form] { ShowNumbers(form); });
  handlers.Set(view.optRange.Click, [&form] { ShowNumbers(form); });
  handlers.Set(view.txtFromNo.Enter, [&view] { doors.forms->SetFocus(view.txtToNo); });
  handlers.Set(view.txtToNo.Enter, [&view] { doors.forms->SetFocus(view.cmdOk); });
  handlers.Set(view.cmdOk.Click, [&form, &view, &accepted] {
    NumberRange range{};
    if (form.has_numbers && !TypedRange(form, range)) {
      MsgBox(Text(1610));
      doors.forms->SetFocus(view.txtFromNo);
      return;
    }
    if (form.has_numbers) {
      AppState.PosiFromNo = static_cast<std::int16_t>(range.first);
      AppState.PosiToNo = static_cast<std::int16_t>(range.last);
      accepted = true;
    }
    view.Visible = false;
  });
  handlers.Set(view.cmdCancel.Click, [&view] { view.Visible = false; });
  ShowViewModal(view);
  AppState.RangeCancelled = !accepted;
  return accepted;
}

NumberRange LoadedRange() {
  const bool loaded = AppState.PosiFirstNo >= 1 && AppState.PosiFirstNo <= AppState.PosiLastNo;
  if (!loaded) return {1, kProposedLast};
  return {AppState.PosiFirstNo, AppState.PosiLastNo};
}

}  // namespace

bool AskReadRange() { return Ask({frmSelectPosiNo2, {1, kPosiMaxNo}, LoadedRange(), true, true}); }

bool AskRange() {
  const NumberRange all{1, kPosiMaxNo};
  const NumberRange bounds = AppState.RangeIsForNew ? all : LoadedRange();
  if (!Ask({frmSelectPosiNo3, bounds, LoadedRange(), false, true})) return false;
  if (AppState.RangeIsForNew) {
    AppState.PosiFirstNo = AppState.PosiFromNo;
    AppState.PosiLastNo = AppState.PosiToNo;
  }
  return true;
}

bool AskVerifyRange(bool overlaps) {
  const NumberRange range{AppState.SyogoFromNo, AppState.SyogoToNo};
  return Ask({frmSelectPosiNo4, range, range, false, overlaps});
}

}  // namespace tr7
