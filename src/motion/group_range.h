#pragma once

namespace tr7 {

/// First and last position of a group.
struct GroupNumbers {
  int first, last;
};

/// Those of the group that the slider stands for.
GroupNumbers GroupRange();
/// The same in words beside the slider, and whether the table on screen holds them.
void ShowGroupRange();

}  // namespace tr7
