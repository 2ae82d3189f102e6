#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/msg_id.h"

namespace tr7 {

/// One row of the message table, as it stands there: a line's end is a backslash and an n.
struct MessageRow {
  int id;
  std::string_view japanese;
  std::string_view english;
};

/// All rows, sorted by id.
const std::vector<MessageRow>& MessageTable();

/// The text of a message in the user's language (`LangOffset`). A number that the table lacks gives
/// "#" and the number, so that it is seen.
std::string Text(MsgId id);

/// The text with "%1" to "%3" replaced.
std::string Text(MsgId id, const std::string& arg1, const std::string& arg2 = {},
                 const std::string& arg3 = {});

}  // namespace tr7
