#pragma once

#include <functional>

#include "base/msg_id.h"
#include "state/progress.h"
#include "steps/outcome.h"

namespace tr7 {

/// A bulk transfer while it runs: status text and progress bar, taken away on every way out, and
/// the records of one kind after the other.
class Bulk {
 public:
  enum class Cancel { No, Yes };

  /// `bar_maximum` counts the records, and what else the bar shows. The cancel button stands beside
  /// the bar where the transfer may be cancelled.
  Bulk(MsgId status_id, int bar_maximum, Cancel cancel);

  /// Runs `record` for each number from `first` to `last`; the bar moves on by one for each that is
  /// done. The first one that is not ends the loop with its outcome. So does a press of the cancel
  /// button before the next record, as `Stopped`.
  Outcome Each(int first, int last, const std::function<Outcome(int number)>& record);

  /// The bar moves on by one for something that is no record.
  void Advance() { progress_.Advance(); }

 private:
  bool may_cancel_;
  ProgressScope progress_;
};

}  // namespace tr7
