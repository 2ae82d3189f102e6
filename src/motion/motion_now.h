#pragma once

#include <cstdint>

#include "base/bool16.h"

namespace tr7 {

/// What this tool has set in motion.
enum class Motion { None, Jog, Inching, Homing, Move };

/// The flows of the move tab, and the start of a teaching session: one at a time.
enum class MoveFlow { None, Home, Select, Continue, Group, Teach };

struct MotionNowRecord {
  Motion Kind = Motion::None;
  MoveFlow Flow = MoveFlow::None;
  Bool16 Stopping;               ///< a stop is being sent
  Bool16 Braking;                ///< behind a stop the controller is asked until the axes stand
  Bool16 MayRunOn;               ///< a stop was not taken: an axis may be moving still
  std::int32_t StopsAsked = 0;   ///< stops by the red button or Escape: a flow ends where it rises
  std::int32_t StopsBefore = 0;  ///< how many there were when the user's latest act began
  std::int64_t SleptUsBefore = 0;  ///< how long the computer had slept by then
  Bool16 CloseAsked;               ///< the user is closing the tool, and a flow has to end first
  Bool16 Unguarded;           ///< there is a guard, but it does not watch the motion begun last
  std::int32_t RowsDone = 0;  ///< of the list of the selective move, from its first row on
};

extern MotionNowRecord MotionNow;

/// The user begins what may set something in motion: stops and sleep count for it from here on.
void BeginAct();
/// The red button or Escape has been pressed since.
bool StopAsked();
/// The computer has slept since: who pressed the button may be gone, and somebody else be there.
bool HasSlept();

/// Something moves by this tool's command, or may do so.
bool SomethingMoves();
/// Something is on its way to a motion: a flow that reads first, a press that asks first.
bool MotionIsComing();

/// Something is about to be set in motion: the lamp, the red button and the guard know of it before
/// the frame goes out.
void BeginMotion(Motion kind);
/// All axes are at rest, or the user has been told that they may not be: the guard watches on then.
void EndMotion();
/// Whether an axis may be moving though its motion has ended for its flow. It may until the
/// controller says that all stand, or takes a stop.
void SetMayRunOn(bool may);
/// The lamp and the red button show it.
void ShowMotionLamp();

/// One motion of a flow: from before its start is sent to the way out of the flow.
class MotionScope {
 public:
  explicit MotionScope(Motion kind) { BeginMotion(kind); }
  ~MotionScope() { EndMotion(); }
  MotionScope(const MotionScope&) = delete;
  MotionScope& operator=(const MotionScope&) = delete;
};

}  // namespace tr7
