#pragma once

namespace tr7 {

/// Wires the move and the teaching tab, the red stop button and the motion log.
void InstallMotion();
/// Nothing moves and nothing is remembered: for whoever puts all state back.
void ResetMotion();

}  // namespace tr7
