#pragma once

namespace tr7 {

/// "0TN": how many tasks run on the controller, 0 to 15; -1 failure, which the user has been told.
/// It opens the port and closes it.
int ReadTaskCountFromCt();

}  // namespace tr7
