#pragma once

#include <string>
#include <vector>

#include "tests/fleet/voyage.h"

namespace tr7 {

/// One seeded run: a tool, a controller, a user who clicks at random, and a line, a disk and a
/// machine that fail at random. `Sail` returns the invariants that did not hold; empty is good.
class Ship {
 public:
  explicit Ship(std::uint64_t seed) : voyage_(seed) {}
  std::vector<std::string> Sail();

 private:
  void Run(const char* name, void (*flow)(Voyage& voyage));
  void RunAnyFlow();
  void GetTable();
  void SailHastily();

  Voyage voyage_;
};

}  // namespace tr7
