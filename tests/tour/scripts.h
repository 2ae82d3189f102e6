#pragma once

#include <string>
#include <vector>

#include "tests/tour/user.h"

namespace tr7::tour {

/// One start of the tool, from the splash to its end, beside a simulated controller of its own. It
/// is played once in each language.
struct Script {
  const char* name;
  QStringList sim_options;  ///< as on the command line of qv-r7-sim
  void (*run)(User& user);
};

const std::vector<Script>& Scripts();

}  // namespace tr7::tour
