#include "motion/running_flow.h"

#include "motion/motion_tabs.h"

namespace tr7 {

RunningFlow::Named::Named(MoveFlow flow) { MotionNow.Flow = flow; }

RunningFlow::Named::~Named() {
  MotionNow.Flow = MoveFlow::None;
  ShowMotionTabs();
}

RunningFlow::RunningFlow(MoveFlow flow) : named_(flow) { ShowMotionTabs(); }

}  // namespace tr7
