#pragma once

#include <functional>
#include <optional>

#include "state/busy_scope.h"

namespace tr7 {

/// What a teaching session holds from its start to its end.
struct TeachingSessionRecord {
  std::optional<CommandsOff> commands_off;
  bool lost = false;                ///< the line has been opened anew under it
  std::function<void()> EndAsLost;  ///< set by who runs sessions
};
extern TeachingSessionRecord TeachingSession;

/// Ends a session that was lost, once no press is served, and tells of it.
void EndLostTeaching();

}  // namespace tr7
