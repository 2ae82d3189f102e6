#pragma once

#include "motion/motion_now.h"
#include "steps/transfer_scope.h"

namespace tr7 {

/// Says what runs, from the user's act on: nothing else begins beside it, and a stop ends it from
/// then on. Where the user closes the tool meanwhile, that goes on at the end.
class NamedFlow {
 public:
  explicit NamedFlow(MoveFlow flow);
  ~NamedFlow();
  NamedFlow(const NamedFlow&) = delete;
  NamedFlow& operator=(const NamedFlow&) = delete;
};

/// What a flow of the move tab takes for its length: commands, the right to close, the port, the
/// tabs, and the buttons of the tab but its own stops.
class RunningFlow {
 public:
  explicit RunningFlow(MoveFlow flow);

 private:
  NamedFlow named_;  ///< before commands go off, until they are on again
  TransferScope transfer_;
};

}  // namespace tr7
