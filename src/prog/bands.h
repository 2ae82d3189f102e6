#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tr7 {

/// What a reference names, one bit each.
enum RefKind : unsigned {
  kNoRef = 0,
  kRefI = 1,        ///< input
  kRefO = 2,        ///< output
  kRefF = 4,        ///< global flag
  kRefLocalF = 8,   ///< local flag
  kRefR = 16,       ///< global variable
  kRefLocalR = 32,  ///< local variable
  kRefPR = 64,      ///< position variable
};
inline constexpr unsigned kRefVariables = kRefR | kRefLocalR;
inline constexpr unsigned kRefFlags = kRefF | kRefLocalF;

inline constexpr std::int32_t kBandBase = 4190208;  ///< 3FF000, in front of the first band

/// A kind of reference. "n" behind the prefix is stored as n plus the offset: in an operand above
/// `kBandBase`, in a condition or a result as it stands.
struct Band {
  std::string_view prefix;
  RefKind kind;
  std::int32_t offset;
  std::int32_t last;  ///< n runs from 1 to this
  constexpr std::int32_t CodeOf(std::int32_t n) const { return kBandBase + offset + n; }
};

/// The bands touch: R101 has the code of r1. Nothing looks at n but what shows a code.
inline constexpr std::array<Band, 7> kBands{{{"I", kRefI, 0, 18},
                                             {"O", kRefO, 20, 16},
                                             {"F", kRefF, 99, 100},
                                             {"f", kRefLocalF, 199, 50},
                                             {"R", kRefR, 299, 100},
                                             {"r", kRefLocalR, 399, 50},
                                             {"PR", kRefPR, 500, 4}}};

}  // namespace tr7
