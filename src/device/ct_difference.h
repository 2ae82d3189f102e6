#pragma once

#include <string>

namespace tr7 {

// In what the PC and the controller differ, as it was read last, a line each. For the user who is
// to choose between the two.

/// The axes in use; nothing where they are the same.
std::string AxesDifference();
/// The mode, and the axes.
std::string ModeAndAxesDifference();
/// The axes; where these are the same the devices on them.
std::string DeviceDifference();

}  // namespace tr7
