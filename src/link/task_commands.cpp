#include "link/task_commands.h"

#include <string>
#include <string_view>

#include "base/text_helpers.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "link/tusin_wait.h"

namespace tr7 {

int ReadTaskCountFromCt() {
  constexpr std::size_t kCountAt = 3;
  const PortClosedAfter port_closed;
  std::string reply;
  if (TusinPortOpen() != 0 || CtComStart() != 0) return -1;
  if (TusinCommand("0TN", 6, 2000, reply) != 0) return -1;
  return static_cast<int>(HexValue(std::string_view(reply).substr(kCountAt, 1)));
}

}  // namespace tr7
