#include "state/selection.h"

#include "forms/frm_selection.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kOkText = 1015;
constexpr int kNextText = 1430;

Selection ChosenOption(const SelectionView& view) {
  for (std::size_t i = 0; i < view.options.size(); ++i) {
    if (view.options[i]->Value) return static_cast<Selection>(i);
  }
  return Selection::Cancelled;
}

/// The product ahead of it, as boxes have it.
std::string CaptionOf(const SelectionCall& call) {
  const std::string caption = Text(201) + " - " + call.Title;
  return call.What ? caption + ": " + Text(call.What) : caption;
}

void Fill(SelectionView& view, const SelectionCall& call) {
  view.Caption = CaptionOf(call);
  view.lblPrompt.Caption = call.Prompt;
  view.lblDetails.Caption = call.Details.substr(0, call.Details.find_last_not_of('\n') + 1);
  view.lblDetails.Visible = !call.Details.empty();
  for (std::size_t i = 0; i < view.options.size(); ++i) {
    view.options[i]->Visible = i < call.Choices.size();
    if (i < call.Choices.size()) view.options[i]->Caption = call.Choices[i];
  }
  view.options[call.Preselected]->Choose();
  view.cmdOk.Caption = Text(call.OkIsNext ? MsgId(kNextText) : MsgId(kOkText));
  view.cmdBack.Visible = call.MayGoBack;
  view.cmdCancel.Visible = call.MayCancel;
  view.RefuseClose = !call.MayCancel;
}

Selection Run(SelectionView& view, const SelectionCall& call) {
  Selection answer = Selection::Cancelled;
  const auto leave = [&view, &answer](Selection with) {
    answer = with;
    view.Visible = false;
  };
  HandlersForOnce handlers;
  handlers.Set(view.Load, [&] { Fill(view, call); });
  handlers.Set(view.cmdOk.Click, [&] { leave(ChosenOption(view)); });
  handlers.Set(view.cmdBack.Click, [&] { leave(Selection::Back); });
  handlers.Set(view.cmdCancel.Click, [&] { leave(Selection::Cancelled); });
  handlers.Set(view.QueryUnload, [&](CloseReason) { return view.RefuseClose; });
  ShowViewModal(view);
  return answer;
}

}  // namespace

Selection SelectionDialog(const SelectionCall& call) { return Run(frmSelection, call); }

Selection SelectionDialog2(const SelectionCall& call) { return Run(frmSelection2, call); }

}  // namespace tr7
