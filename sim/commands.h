#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "sim/controller.h"

namespace qvr7sim {

/// Carries out one control line. Returns "ok ..." or "error ...", without line end; sets `quit`
/// when the program is to end.
std::string RunCommand(std::string_view line, Controller* controller, std::int64_t now_us,
                       bool* quit);

}  // namespace qvr7sim
