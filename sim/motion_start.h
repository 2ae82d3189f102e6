#pragma once

#include <cstdint>
#include <string>

namespace qvr7sim {

/// Axes that began to move together, and why.
struct MotionStart {
  std::int64_t at_us = 0;
  unsigned mask = 0;    ///< of the axes
  std::string request;  ///< that started them, without its line end; "inputs" where none did
};

}  // namespace qvr7sim
