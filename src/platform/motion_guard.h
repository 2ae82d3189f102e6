#pragma once

namespace tr7 {

/// The door to what watches over a motion in the tool's stead: where the tool ends, or hangs for
/// half a second during a jog, before it has said that all is at rest, the guard stops the axes
/// over the line that was open when the motion began.
class MotionGuard {
 public:
  virtual ~MotionGuard() = default;
  /// An axis is about to be set in motion over the open port. `held`: it runs for as long as the
  /// tool is alive to stop it (a jog). False: nobody watches on this system.
  virtual bool Watch(bool held) = 0;
  /// All axes are at rest, or have been given up on after the user was told.
  virtual void Rest() = 0;
  /// True where this system can have a guard.
  virtual bool IsThere() const = 0;
};

}  // namespace tr7
