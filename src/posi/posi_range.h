#pragma once

#include <cstdint>

#include "state/app_state.h"

namespace tr7 {

/// Position numbers from one to another, both included.
struct PosiRange {
  int first = 0;
  int last = 0;
  int Count() const { return last - first + 1; }
  bool IsEmpty() const { return first > last; }
  bool Holds(int number) const { return number >= first && number <= last; }
  bool operator==(const PosiRange&) const = default;
};

/// The loaded table (0 to 0: there is none), and the range of the running operation.
inline PosiRange LoadedPosiRange() { return {AppState.PosiFirstNo, AppState.PosiLastNo}; }
inline PosiRange OperationRange() { return {AppState.PosiFromNo, AppState.PosiToNo}; }

inline void SetLoadedPosiRange(const PosiRange& range) {
  AppState.PosiFirstNo = static_cast<std::int16_t>(range.first);
  AppState.PosiLastNo = static_cast<std::int16_t>(range.last);
  AppState.PosiCount = static_cast<std::int16_t>(range.Count());
}
inline void SetOperationRange(const PosiRange& range) {
  AppState.PosiFromNo = static_cast<std::int16_t>(range.first);
  AppState.PosiToNo = static_cast<std::int16_t>(range.last);
}

/// True unless the operation's range leaves out a part of the loaded table.
inline bool RangeIsWholeTable() {
  return AppState.PosiFromNo <= AppState.PosiFirstNo && AppState.PosiToNo >= AppState.PosiLastNo;
}

/// The operation's range is the whole loaded table again when a flow that lets the user narrow it
/// ends: whatever runs next (a conversion, a check, a save) means the whole table.
class WholeRangeAfter {
 public:
  WholeRangeAfter() = default;
  ~WholeRangeAfter() { SetOperationRange(LoadedPosiRange()); }
  WholeRangeAfter(const WholeRangeAfter&) = delete;
  WholeRangeAfter& operator=(const WholeRangeAfter&) = delete;
};

}  // namespace tr7
