#include "posi/range_dialogs.h"

#include <initializer_list>
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

/// What a dialogue of this family shows and takes.
struct RangeForm {
  SelectPosiNoView& view;
  PosiRange bounds;    ///< numbers outside are refused
  PosiRange proposed;  ///< shown at first
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
bool TypedRange(const RangeForm& form, PosiRange& range) {
  if (form.offers_all && form.view.optAll.Value) {
    range = {1, kPosiMaxNo};
    return true;
  }
  range = {static_cast<int>(Val(form.view.txtFromNo.Text)),
           static_cast<int>(Val(form.view.txtToNo.Text))};
  return !range.IsEmpty() && form.bounds.Holds(range.first) && form.bounds.Holds(range.last);
}

std::optional<PosiRange> Ask(const RangeForm& form) {
  SelectPosiNoView& view = form.view;
  std::optional<PosiRange> accepted;
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
    PosiRange range{};
    if (form.has_numbers && !TypedRange(form, range)) {
      MsgBox(Text(1610));
      doors.forms->SetFocus(view.txtFromNo);
      return;
    }
    if (form.has_numbers) accepted = range;
    view.Visible = false;
  });
  handlers.Set(view.cmdCancel.Click, [&view] { view.Visible = false; });
  ShowViewModal(view);
  AppState.RangeCancelled = !accepted.has_value();
  if (accepted) SetOperationRange(*accepted);
  return accepted;
}

PosiRange ProposedRange() {
  const bool loaded = AppState.PosiFirstNo >= 1 && AppState.PosiFirstNo <= AppState.PosiLastNo;
  if (!loaded) return {1, kProposedLast};
  return LoadedPosiRange();
}

}  // namespace

std::optional<PosiRange> AskReadRange() {
  return Ask({frmSelectPosiNo2, {1, kPosiMaxNo}, ProposedRange(), true, true});
}

std::optional<PosiRange> AskRange() {
  const PosiRange all{1, kPosiMaxNo};
  const PosiRange bounds = AppState.RangeIsForNew ? all : ProposedRange();
  const auto range = Ask({frmSelectPosiNo3, bounds, ProposedRange(), false, true});
  if (range && AppState.RangeIsForNew) {
    AppState.PosiFirstNo = AppState.PosiFromNo;
    AppState.PosiLastNo = AppState.PosiToNo;
  }
  return range;
}

std::optional<PosiRange> AskVerifyRange(bool overlaps) {
  const PosiRange range{AppState.SyogoFromNo, AppState.SyogoToNo};
  return Ask({frmSelectPosiNo4, range, range, false, overlaps});
}

std::string WithRange(MsgId question, const PosiRange& range) {
  constexpr int kMsgPositions = 7192;
  return WithReason(Text(question),
                    Text(kMsgPositions, std::to_string(range.first), std::to_string(range.last)));
}

}  // namespace tr7
