#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/form_host.h"

namespace tr7 {

/// A screen without a screen: answers come from a script, and everything shown is recorded.
/// A box, dialogue or modal view that the script does not answer is cancelled, and counted in
/// `unanswered`.
class VirtualFormHost : public FormHost {
 public:
  void Show(View& view) override;
  void ShowModal(View& view) override;
  void Hide(View& view) override;
  bool Holds(const View&) override { return false; }
  void BringToFront(View& view) override;
  void Refresh() override {}
  MsgAnswer MessageBox(const MessageBoxCall& call) override;
  std::optional<std::string> FileDialog(const FileDialogCall& call) override;
  void Beep() override { ++beeps; }
  void WaitCursor(bool on) override { wait_cursors += on ? 1 : -1; }
  void SetFocus(Control& control) override { focus = &control; }
  void ArrangeWindows(WindowArrangement how) override { arrangements.push_back(how); }
  void EndProcess() override { ended = true; }

  /// Next answers to message boxes; a box with OK alone needs none.
  std::deque<MsgAnswer> answers;
  /// When set, sees every box, and is asked before `answers` where one needs an answer.
  std::function<std::optional<MsgAnswer>(const MessageBoxCall&)> on_message_box;
  /// Next answers of file dialogues.
  std::deque<std::optional<std::string>> file_answers;
  /// When set, asked instead of them.
  std::function<std::optional<std::string>(const FileDialogCall&)> on_file_dialog;
  /// What the user does in a modal view, by view name; the handler is called once it is shown and
  /// must end by closing it, or have arranged for that on the clock (then set `may_wait`).
  std::map<std::string, std::function<void(View&)>> on_modal;
  std::function<void(View&)> on_any_modal;
  bool may_wait = false;

  /// What happens while a box stands, before it is answered: nothing of the user's but the answer.
  std::function<void()> while_box;
  bool box_stands = false;
  /// The dialogue before all others, or null.
  View* ModalInFront() const { return open_modals.empty() ? nullptr : open_modals.back(); }
  std::vector<View*> open_modals;

  std::vector<MessageBoxCall> boxes;
  std::vector<FileDialogCall> file_dialogs;
  std::vector<std::string> modals;  ///< names of modal views shown
  std::vector<std::string> unanswered;
  std::vector<WindowArrangement> arrangements;
  int beeps = 0;
  int wait_cursors = 0;  ///< 0 when every wait cursor was taken back
  Control* focus = nullptr;
  bool ended = false;  ///< nothing is shown any more, and every question is cancelled

  /// Text of the last box, or empty.
  std::string LastBox() const { return boxes.empty() ? std::string() : boxes.back().Text; }
};

}  // namespace tr7
