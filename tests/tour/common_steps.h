#pragma once

#include "tests/tour/session.h"

namespace tr7::tour {

// Ways that several scripts go.

/// The splash and the first choice, with pictures.
void PassSplash(Tour& tour);
/// Chooses online; ends with the version on the screen.
void ConnectAtStart(Tour& tour);
/// Starts a read of the range and confirms it.
void StartReading(Tour& tour, int from, int to, bool picture_of_range);
void LeaveByMenu(Tour& tour);

}  // namespace tr7::tour
