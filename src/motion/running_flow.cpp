#include "motion/running_flow.h"

#include <utility>

#include "forms/frm_main.h"
#include "motion/motion_tabs.h"
#include "state/views.h"

namespace tr7 {

NamedFlow::NamedFlow(MoveFlow flow) {
  MotionNow.Flow = flow;
  BeginAct();
  ShowMotionTabs();
}

NamedFlow::~NamedFlow() {
  MotionNow.Flow = MoveFlow::None;
  ShowMotionTabs();
  if (std::exchange(MotionNow.CloseAsked, False)) CloseView(frmMain, CloseReason::ControlMenu);
}

RunningFlow::RunningFlow(MoveFlow flow) : named_(flow) { ShowMotionTabs(); }

}  // namespace tr7
