#pragma once

#include <string>

#include "base/msg_id.h"
#include "platform/form_host.h"

namespace tr7 {

/// A box with the product's name as its title, in front of everything; returns the user's answer.
/// Escape and closing the box count as Cancel, as No where it has no Cancel, or as OK where OK is
/// all it offers.
MsgAnswer MsgBox(const std::string& text, MsgButtons buttons = MsgButtons::Ok,
                 MsgIcon icon = MsgIcon::Warning);
MsgAnswer MsgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                 const std::string& title);

/// The same with a list beside it, one thing a line, which the user may unfold and copy. The text
/// says all that the answer depends on.
MsgAnswer MsgBoxWithDetails(const std::string& text, const std::string& details,
                            MsgButtons buttons = MsgButtons::Ok, MsgIcon icon = MsgIcon::Warning);
/// A line of such a list: what it is about, and what stands here and on the other side.
std::string DifferenceLine(const std::string& what, const std::string& here,
                           const std::string& there);

/// Two messages, one line each.
std::string TwoLines(MsgId id1, MsgId id2);

/// A box's text, and behind it, where there is one, the reason.
std::string WithReason(const std::string& text, const std::string& reason);

// Telling and asking by message id.

/// Something went wrong.
void Tell(MsgId id);
/// Something is done.
void TellDone(MsgId id);
/// A question with OK and Cancel: true for OK.
[[nodiscard]] bool AskOk(MsgId id);
[[nodiscard]] bool AskOk(const std::string& question);
/// The same, where OK loses or replaces what cannot come back: Enter is a Cancel.
[[nodiscard]] bool AskToLose(const std::string& question, MsgIcon icon = MsgIcon::Question);
/// A question with Yes and No: true for Yes.
[[nodiscard]] bool AskYes(MsgId id);
/// The same, where Yes loses or replaces what cannot come back: Enter is a No. `details`: a list
/// beside it, one thing a line.
[[nodiscard]] bool AskYesToLose(const std::string& question, const std::string& details = {});
/// The same, where Yes leads into something that is not looked after: Enter is a No.
[[nodiscard]] bool AskYesWarned(const std::string& question);
/// The same, where No loses what cannot come back: the box stays until one of the two is pressed.
/// True unless No was.
[[nodiscard]] bool AskNoToLose(const std::string& question);
/// A question with Yes, No and Cancel.
[[nodiscard]] MsgAnswer AskYesNoCancel(MsgId id);

}  // namespace tr7
