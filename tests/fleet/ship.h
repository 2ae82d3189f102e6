#pragma once

#include <string>
#include <vector>

#include "tests/fleet/random.h"
#include "tests/support/state_test.h"

namespace tr7 {

struct DeviceView;

/// One seeded run: a tool, a controller, a user who clicks at random and a line that fails at
/// random. `Sail` returns the invariants that did not hold; empty is good.
class Ship {
 public:
  explicit Ship(std::uint64_t seed);
  std::vector<std::string> Sail();

 private:
  void PlanUser();
  void AnswerDevices(DeviceView& view);
  void PlanFaults();
  void Spoil();
  void DoFlow();
  void Start();
  void Read();
  void Reset();
  void GoOnline();
  void GoOffline();
  void ShowVersion();
  void ChangeDevices();
  void WriteDevices();
  void CloseByWindow();
  void CheckRest(const std::string& after);
  void Fail(const std::string& what);

  std::uint64_t seed_;
  Random random_;
  VirtualDoors virt_;
  std::vector<std::string> failures_;
  std::string log_;  ///< what was done, for the report of a failing run
};

}  // namespace tr7
