#pragma once

#include "tests/support/state_test.h"

namespace tr7 {

/// Command functions called on a line that is online, the error texts loaded.
class LinkTest : public StateTest {
 protected:
  LinkTest();

  void Axes(bool a1, bool a2, bool a3, bool a4);
  /// Lines sent since the last call, without their ends.
  std::vector<std::string> Sent();
  /// The same without data: the first `characters` of each line, a blank in between.
  std::string Commands(std::size_t characters = 4);
  /// The controller takes this line; what it stands for is written there, not committed.
  void Plant(const std::string& line);
  /// A fault at the next request that begins with `prefix`; bytes of a reply count from 0.
  void Spoil(qvr7sim::FaultKind kind, const std::string& prefix, int at_byte = -1);
};

}  // namespace tr7
