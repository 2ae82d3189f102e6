#pragma once

#include <QString>
#include <string>
#include <vector>

#include "tests/tour/sim_process.h"
#include "tests/tour/user.h"

namespace tr7::tour {

/// What a script works with.
struct Tour {
  User& user;
  SimProcess& sim;
  QString folder;  ///< where pictures and files go
};

/// One start of the tool, from the splash to its end, beside a simulated controller of its own.
struct Session {
  const char* name;
  std::vector<std::string> settings;     ///< "key=value"
  std::vector<std::string> sim_options;  ///< as on the command line of qv-r7-sim
  void (*script)(Tour& tour);
};

const std::vector<Session>& Sessions();

}  // namespace tr7::tour
