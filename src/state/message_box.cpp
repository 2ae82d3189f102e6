#include "state/message_box.h"

#include "platform/doors.h"
#include "state/text.h"

namespace tr7 {

MsgAnswer MsgBox(const std::string& text, MsgButtons buttons, MsgIcon icon) {
  return MsgBox(text, buttons, icon, Text(201));
}

MsgAnswer MsgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                 const std::string& title) {
  return doors.forms->MessageBox({text, title, buttons, icon});
}

MsgAnswer MsgBoxWithDetails(const std::string& text, const std::string& details, MsgButtons buttons,
                            MsgIcon icon) {
  return doors.forms->MessageBox(
      {.Text = text, .Title = Text(201), .Buttons = buttons, .Icon = icon, .Details = details});
}

std::string DifferenceLine(const std::string& what, const std::string& here,
                           const std::string& there) {
  constexpr int kMsgHereAndThere = 7820;
  return Text(kMsgHereAndThere, what, here, there) + "\n";
}

std::string TwoLines(MsgId id1, MsgId id2) { return Text(id1) + "\n" + Text(id2); }

std::string WithReason(const std::string& text, const std::string& reason) {
  return reason.empty() ? text : text + "\n\n" + reason;
}

void Tell(MsgId id) { MsgBox(Text(id)); }
void TellDone(MsgId id) { MsgBox(Text(id), MsgButtons::Ok, MsgIcon::Information); }

bool AskOk(MsgId id) { return AskOk(Text(id)); }

bool AskOk(const std::string& question) {
  return MsgBox(question, MsgButtons::OkCancel, MsgIcon::Question) == MsgAnswer::Ok;
}

bool AskToLose(const std::string& question, MsgIcon icon) {
  return doors.forms->MessageBox({question, Text(201), MsgButtons::OkCancel, icon, true}) ==
         MsgAnswer::Ok;
}

bool AskYes(MsgId id) {
  return MsgBox(Text(id), MsgButtons::YesNo, MsgIcon::Question) == MsgAnswer::Yes;
}

bool AskYesToLose(const std::string& question, const std::string& details) {
  return doors.forms->MessageBox({question, Text(201), MsgButtons::YesNo, MsgIcon::Question, true,
                                  details}) == MsgAnswer::Yes;
}

bool AskYesWarned(const std::string& question) {
  return doors.forms->MessageBox(
             {question, Text(201), MsgButtons::YesNo, MsgIcon::Warning, true}) == MsgAnswer::Yes;
}

bool AskNoToLose(const std::string& question) {
  return doors.forms->MessageBox({.Text = question,
                                  .Title = Text(201),
                                  .Buttons = MsgButtons::YesNo,
                                  .Icon = MsgIcon::Question,
                                  .NoLoses = true}) != MsgAnswer::No;
}

MsgAnswer AskYesNoCancel(MsgId id) {
  return MsgBox(Text(id), MsgButtons::YesNoCancel, MsgIcon::Question);
}

}  // namespace tr7
