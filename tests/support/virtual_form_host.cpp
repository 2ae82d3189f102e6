#include "tests/support/virtual_form_host.h"

#include "forms/control.h"
#include "forms/hold_button.h"
#include "forms/view.h"
#include "platform/doors.h"
#include "state/views.h"

namespace tr7 {

void VirtualFormHost::Show(View& view) { view.Visible = true; }

void VirtualFormHost::ShowModal(View& view) {
  LetGoOfHeldButton();
  if (ended) return;
  view.Visible = true;
  modals.emplace_back(view.Name);
  open_modals.push_back(&view);
  if (const auto script = on_modal.find(view.Name); script != on_modal.end()) {
    script->second(view);
  } else if (on_any_modal) {
    on_any_modal(view);
  }
  while (view.Visible && may_wait) Pump();
  open_modals.pop_back();
  if (!view.Visible) return;
  unanswered.emplace_back(view.Name);
  view.Visible = false;
}

void VirtualFormHost::Hide(View& view) {
  view.Visible = false;
  LetGoOfLostButton();
}

void VirtualFormHost::BringToFront(View& view) {
  if (view.MdiChild) SetActiveView(&view);
}

MsgAnswer VirtualFormHost::MessageBox(const MessageBoxCall& call) {
  LetGoOfHeldButton();
  if (ended) return call.Buttons == MsgButtons::Ok ? MsgAnswer::Ok : MsgAnswer::Cancel;
  boxes.push_back(call);
  if (while_box) {
    box_stands = true;
    while_box();
    box_stands = false;
  }
  const auto answer_now = on_message_box ? on_message_box(call) : std::nullopt;
  if (call.Buttons == MsgButtons::Ok) return MsgAnswer::Ok;
  if (answer_now) return *answer_now;
  if (answers.empty()) {
    unanswered.push_back(call.Text);
    return call.Buttons == MsgButtons::YesNo ? MsgAnswer::No : MsgAnswer::Cancel;
  }
  const MsgAnswer answer = answers.front();
  answers.pop_front();
  return answer;
}

std::optional<std::string> VirtualFormHost::FileDialog(const FileDialogCall& call) {
  LetGoOfHeldButton();
  if (ended) return std::nullopt;
  file_dialogs.push_back(call);
  if (on_file_dialog) return on_file_dialog(call);
  if (file_answers.empty()) {
    unanswered.push_back(call.Title);
    return std::nullopt;
  }
  const auto answer = file_answers.front();
  file_answers.pop_front();
  return answer;
}

}  // namespace tr7
