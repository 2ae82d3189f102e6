#pragma once

#include "motion/motion_now.h"
#include "steps/transfer_scope.h"

namespace tr7 {

/// What a flow of the move tab takes for its length: commands, the right to close, the port, the
/// tabs, and the buttons of the tab but its own stops.
class RunningFlow {
 public:
  explicit RunningFlow(MoveFlow flow);

 private:
  /// Names the flow before commands go off, and no longer after they are on again.
  struct Named {
    explicit Named(MoveFlow flow);
    ~Named();
    Named(const Named&) = delete;
    Named& operator=(const Named&) = delete;
  };
  Named named_;
  TransferScope transfer_;
};

}  // namespace tr7
