#pragma once

#include <string>

namespace tr7 {

/// Why a frame is not sent by hand, in the user's words; empty: it may be. What moves an axis, or
/// writes, or is not known, never is.
std::string RefusalOfFrame(const std::string& frame);

/// Sends a frame as the user has typed it. Before the first one since `warned` was false the user
/// is asked. The words for what came of it; empty where nothing was sent.
std::string SendByHand(const std::string& frame, bool& warned);

}  // namespace tr7
