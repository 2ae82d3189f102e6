#pragma once

#include <span>

#include "base/msg_id.h"

namespace tr7 {

/// What the tool tip of a control says. A name without its number stands for all of a row;
/// "areaTable" for every field of the view's tables, where %1 is the row's name and %2 the
/// column's.
struct Tip {
  const char* name;
  MsgId text;
  bool connects = false;  ///< a command that goes online by itself where the session is offline
};

/// The tips of the views of one layout; an empty layout stands for every view.
struct ViewTips {
  const char* layout;
  std::span<const Tip> tips;
};

std::span<const ViewTips> TipTable();

}  // namespace tr7
