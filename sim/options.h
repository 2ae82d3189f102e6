#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sim/faults.h"
#include "sim/setup.h"

namespace qvr7sim {

/// What the command line asks for.
struct Options {
  Setup setup = Setup::Useful();
  Faults faults;
  std::vector<int> failing_homings;  ///< Axes whose next homing fails, 1 to 4.
  std::uint64_t seed = 1;
  bool silent = false;
  bool quit_on_eof = false;
  bool tell_motion = false;
  bool help = false;
  std::string wrong;  ///< What an option found wrong in a file, after ParseOptions.
};

/// Arguments without the program's name. Empty result: good; else what is wrong.
std::string ParseOptions(const std::vector<std::string>& arguments, Options* options);
/// The help text, with a line end behind each line.
std::string HelpText();

}  // namespace qvr7sim
