#include "tests/support/virtual_pump.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "forms/hold_button.h"
#include "platform/due_timers.h"

namespace tr7 {

void VirtualPump::At(std::int64_t at_us, std::function<void()> what) {
  acts_.emplace(at_us, std::move(what));
}

bool VirtualPump::RunActs() {
  bool ran = false;
  while (!acts_.empty() && acts_.begin()->first <= now_us_) {
    auto act = std::move(acts_.begin()->second);
    acts_.erase(acts_.begin());
    act();
    ran = true;
  }
  return ran;
}

void VirtualPump::Run() {
  const HoldButton* held = HoldButton::Held();
  LetGoOfLostButton();
  if (held != HoldButton::Held()) return;  // its release may have waited for whatever was due
  if (RunActs() || ServeDueTimers()) return;
  std::optional<std::int64_t> next = NextDueUs();
  if (!acts_.empty()) {
    next = std::min(next.value_or(acts_.begin()->first), acts_.begin()->first);
  }
  if (!next) throw VirtualTimeExceeded("nothing will ever happen");
  if (*next > limit_us_) throw VirtualTimeExceeded("the run does not end");
  now_us_ = std::max(now_us_, *next);
  RunActs();
  ServeDueTimers();
}

void VirtualPump::RunFor(std::int64_t us) {
  bool over = false;
  After(us, [&over] { over = true; });
  while (!over) Run();
}

}  // namespace tr7
