#pragma once

#include "state/app_state.h"

namespace tr7 {

/// True unless the operation's range leaves out a part of the loaded table.
inline bool RangeIsWholeTable() {
  return AppState.PosiFromNo <= AppState.PosiFirstNo && AppState.PosiToNo >= AppState.PosiLastNo;
}

/// The operation's range is the whole loaded table again when a flow that lets the user narrow it
/// ends: whatever runs next (a conversion, a check, a save) means the whole table.
class WholeRangeAfter {
 public:
  WholeRangeAfter() = default;
  ~WholeRangeAfter() {
    AppState.PosiFromNo = AppState.PosiFirstNo;
    AppState.PosiToNo = AppState.PosiLastNo;
  }
  WholeRangeAfter(const WholeRangeAfter&) = delete;
  WholeRangeAfter& operator=(const WholeRangeAfter&) = delete;
};

}  // namespace tr7
