#include "steps/bulk.h"

#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {

Bulk::Bulk(MsgId status_id, int bar_maximum, Cancel cancel)
    : may_cancel_(cancel == Cancel::Yes), progress_(Text(status_id), bar_maximum, may_cancel_) {}

Outcome Bulk::Each(int first, int last, const std::function<Outcome(int number)>& record) {
  for (int number = first; number <= last; ++number) {
    if (may_cancel_ && AppState.CancelRequested) return Outcome::Stopped;
    const Outcome outcome = record(number);
    if (outcome != Outcome::Done) return outcome;
    progress_.Advance();
  }
  return Outcome::Done;
}

}  // namespace tr7
