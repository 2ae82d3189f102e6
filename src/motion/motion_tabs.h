#pragma once

namespace tr7 {

/// What may be pressed on the move and the teaching tab, what is on show there and why the rest may
/// not be pressed: all of it by the state as it is now.
void ShowMotionTabs();
/// The part of it that follows from the places that pauses have kept.
void ShowKeptPlaces();

}  // namespace tr7
