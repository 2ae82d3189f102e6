#pragma once

#include <vector>

namespace tr7 {

/// What an alignment sees of a step. Two of the same `whole` are the same step, and two of the same
/// `command` are alike.
struct StepLook {
  int whole, command;
};

/// Steps that stand side by side, counted from 0; -1 where the other program has none beside it.
struct AlignedSteps {
  int here, there;
};

/// Sets two programs side by side, each in its own order: as many steps as can be beside the same
/// one, then beside one that is alike, then beside any. What is left stands alone: it was inserted
/// or removed. Takes time by the product of the lengths, without what both begin and end with.
std::vector<AlignedSteps> AlignSteps(const std::vector<StepLook>& here,
                                     const std::vector<StepLook>& there);

}  // namespace tr7
