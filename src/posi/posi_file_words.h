#pragma once

namespace tr7 {

// The words at the head of a position file.
inline constexpr const char* kPosiMagic = "QV-R7";
inline constexpr const char* kPosiPrgMode = "PRG MODE";
inline constexpr const char* kPosiPosMode = "POS MODE";
inline constexpr const char* kNew = "NEW";  ///< age of an axis's device
inline constexpr const char* kOld = "OLD";

}  // namespace tr7
