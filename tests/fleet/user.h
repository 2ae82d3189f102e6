#pragma once

#include <string>

#include "tests/fleet/voyage.h"

namespace tr7 {

/// Puts a user before the screen who answers whatever comes up, at random, and in the end closes
/// every dialogue.
void SeatUser(Voyage& voyage);

inline constexpr const char* kParaPath = "/work/p.pmt";

/// One of the few position files that the user works with.
std::string AnyPath(Random& random);

}  // namespace tr7
