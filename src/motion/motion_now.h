#pragma once

#include <cstdint>

#include "base/bool16.h"

namespace tr7 {

/// What this tool has set in motion.
enum class Motion { None, Jog, Inching, Homing, Move };

/// The flows of the move tab, one at a time.
enum class MoveFlow { None, Home, Select, Continue, Group };

struct MotionNowRecord {
  Motion Kind = Motion::None;
  MoveFlow Flow = MoveFlow::None;
  Bool16 Stopping;              ///< a stop is being sent
  Bool16 MayRunOn;              ///< a stop was not answered: an axis may be moving still
  std::int32_t StopsAsked = 0;  ///< stops by the red button or Escape: a flow ends where it rises
};

extern MotionNowRecord MotionNow;

/// Something is about to be set in motion: the lamp, the red button and the guard know of it before
/// the frame goes out.
void BeginMotion(Motion kind);
/// All axes are at rest, or the user has been told that they may not be.
void EndMotion();
/// The lamp and the red button show it.
void ShowMotionLamp();

/// One motion of a flow: from before its start is sent to the way out of the flow.
class MotionScope {
 public:
  explicit MotionScope(Motion kind) : stops_asked_(MotionNow.StopsAsked) { BeginMotion(kind); }
  ~MotionScope() { EndMotion(); }
  MotionScope(const MotionScope&) = delete;
  MotionScope& operator=(const MotionScope&) = delete;

  /// The user has stopped it at once.
  bool StopAsked() const { return MotionNow.StopsAsked != stops_asked_; }

 private:
  std::int32_t stops_asked_;
};

}  // namespace tr7
