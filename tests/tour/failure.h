#pragma once

#include <stdexcept>

namespace tr7::tour {

/// A step that did not show what it should; the words say what was missing.
struct TourFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace tr7::tour
