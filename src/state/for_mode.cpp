#include "state/for_mode.h"

#include "state/app_state.h"

namespace tr7 {

bool FitsMode(ForMode mode) {
  return mode == ForMode::Any || (mode == ForMode::Program) == static_cast<bool>(AppState.CtMode);
}

MsgId ModeNameId(ForMode mode) {
  if (mode == ForMode::Any) return {};
  return mode == ForMode::Program ? MsgId(129) : MsgId(128);
}

}  // namespace tr7
