#pragma once

namespace tr7 {

/// True when all axes stand still. Otherwise nothing may be written: a move has been told, and the
/// exchange its failure.
[[nodiscard]] bool AxesStandStill();

/// Nobody could give the axes back to the controller: `AppState.AxesMayBeHeld` has the next
/// connection do so before anything else, and until then there is none. An alarm in the place of
/// another's answer may have left the line online.
void AxesStayHeld();

/// The axes in use are held for the length of a write: meanwhile the controller's inputs start no
/// move. Every way out releases them. Where the line is dead, or has refused something so that
/// nothing more may be sent, they may stay held, and the user is told.
class HeldAxes {
 public:
  HeldAxes() = default;
  ~HeldAxes() { GiveUp(); }
  HeldAxes(const HeldAxes&) = delete;
  HeldAxes& operator=(const HeldAxes&) = delete;

  /// False after the user has been told.
  [[nodiscard]] bool Hold();
  /// The release at the end of a good write. False after the user has been told.
  [[nodiscard]] bool Release();
  /// The way out of a failure, which the user has been told: releases where that is possible.
  void GiveUp();

 private:
  bool held_ = false;
};

}  // namespace tr7
