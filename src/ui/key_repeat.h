#pragma once

#include <QKeyEvent>
#include <cstdint>

namespace tr7 {

/// A held key repeats as releases and presses in pairs, and not always does the window system say
/// so: behind a change of window it does not. A press this close behind the release at `up_ms`, by
/// the window system's clock, is no hand's; 0: there was no release.
inline bool ClosesPair(const QKeyEvent& press, std::uint64_t up_ms) {
  constexpr std::uint64_t kPairMs = 20;
  return up_ms != 0 && press.timestamp() - up_ms < kPairMs;
}

}  // namespace tr7
