#pragma once

#include <QtGlobal>

namespace tr7 {

/// Twips to pixels at the design's 96 dpi: Qt's device-independent pixels, so the screen's scale is
/// applied behind our back.
inline int Pixels(double twips) { return qRound(twips / 15.0); }
inline double Twips(int pixels) { return pixels * 15.0; }

}  // namespace tr7
