#pragma once

#include "tests/tour/session.h"

namespace tr7::tour {

// Ways that several scripts go.

/// The splash and the first choice, with pictures.
void PassSplash(Tour& tour);
/// The same without pictures.
void PassSplashUnseen(Tour& tour);
/// Chooses online; ends with the version and the controller's mode on the screen.
void ConnectAtStart(Tour& tour, bool program_mode = false);
/// Starts a read of the range and confirms it.
void StartReading(Tour& tour, int from, int to, bool picture_of_range);
/// Reads all 40 positions.
void ReadAll(Tour& tour);
void LeaveByMenu(Tour& tour);

}  // namespace tr7::tour
