#pragma once

#include "base/msg_id.h"

namespace tr7 {

/// New Data: asks for a range, fills the defaults and shows the table. Cancel keeps an earlier one.
void SinkiSakusei();

/// Offers to save unsaved data. False: the user wants to keep it, or the save did not happen.
bool MayReplaceTable(MsgId question_id);

}  // namespace tr7
