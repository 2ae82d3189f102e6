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

std::string TwoLines(MsgId id1, MsgId id2) { return Text(id1) + "\n" + Text(id2); }

}  // namespace tr7
