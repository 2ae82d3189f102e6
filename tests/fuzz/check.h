#pragma once

#include <cstdio>
#include <cstdlib>

namespace tr7 {

/// Stops the run when what must hold for every input does not.
inline void FuzzCheck(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

}  // namespace tr7
