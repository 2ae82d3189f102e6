#include "state/selection.h"

#include "forms/frm_selection.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kOkText = 1015;
constexpr int kNextText = 1430;

int ChosenOption(const SelectionView& view) {
  for (std::size_t i = 0; i < view.options.size(); ++i) {
    if (view.options[i]->Value) return static_cast<int>(i);
  }
  return kSelectionCancelled;
}

struct Buttons {
  bool cancel;
  bool back;
  bool next;
};

int Run(SelectionView& view, const std::string& title, const std::string& prompt,
        const std::vector<std::string>& choices, int preselected, const Buttons& buttons) {
  int answer = kSelectionCancelled;
  view.Load = [&] {
    view.Caption = title;
    view.lblPrompt.Caption = prompt;
    for (std::size_t i = 0; i < view.options.size(); ++i) {
      view.options[i]->Visible = i < choices.size();
      if (i < choices.size()) view.options[i]->Caption = choices[i];
    }
    view.options[static_cast<std::size_t>(preselected)]->Choose();
    view.cmdOk.Caption = Text(buttons.next ? MsgId(kNextText) : MsgId(kOkText));
    view.cmdBack.Visible = buttons.back;
    view.cmdCancel.Visible = buttons.cancel;
    view.RefuseClose = !buttons.cancel;
  };
  const auto leave = [&view, &answer](int with) {
    answer = with;
    view.Visible = false;
  };
  view.cmdOk.Click = [&] { leave(ChosenOption(view)); };
  view.cmdBack.Click = [&] { leave(kSelectionBack); };
  view.cmdCancel.Click = [&] { leave(kSelectionCancelled); };
  view.QueryUnload = [&](CloseReason) { return view.RefuseClose; };
  ShowViewModal(view);
  view.Load = view.cmdOk.Click = view.cmdBack.Click = view.cmdCancel.Click = nullptr;
  view.QueryUnload = nullptr;
  return answer;
}

}  // namespace

int SelectionDialog(const std::string& title, const std::string& prompt, const std::string& choice1,
                    const std::string& choice2, int no_cancel, int back, int next) {
  return Run(frmSelection, title, prompt, {choice1, choice2}, 0,
             {.cancel = no_cancel == 0, .back = back != 0, .next = next != 0});
}

int SelectionDialog2(const std::string& title, const std::string& prompt,
                     const std::vector<std::string>& choices, int preselected) {
  return Run(frmSelection2, title, prompt, choices, preselected,
             {.cancel = true, .back = false, .next = false});
}

}  // namespace tr7
