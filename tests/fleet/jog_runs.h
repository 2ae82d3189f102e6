#pragma once

#include <cstdint>

namespace tr7 {

/// One seeded teaching session: presses of jog and inching buttons, hands that are taken away, and
/// a line that fails. True: nothing has run on. A runaway is printed with its seed.
bool NoAxisRunsOn(std::uint64_t seed);

}  // namespace tr7
