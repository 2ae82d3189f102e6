#include "platform/due_timers.h"

#include <algorithm>

#include "forms/timer.h"
#include "platform/doors.h"

namespace tr7 {
namespace {

bool IsDue(Timer& timer, std::int64_t now) {
  if (!timer.Enabled) return false;
  if (timer.HasWork) return timer.HasWork();
  if (timer.Interval <= 0) return false;
  if (timer.DueUs == Timer::kNotArmed) timer.DueUs = now + std::int64_t{timer.Interval} * 1000;
  return now >= timer.DueUs;
}

}  // namespace

bool ServeDueTimers() {
  bool served = false;
  for (std::size_t i = 0; i < TimerTable().size(); ++i) {
    Timer& timer = *TimerTable()[i];
    if (!IsDue(timer, doors.pump->NowUs())) continue;
    timer.DueUs = Timer::kNotArmed;
    served = true;
    if (timer.Tick) timer.Tick();
  }
  return served;
}

std::optional<std::int64_t> NextDueUs() {
  std::optional<std::int64_t> next = doors.serial ? doors.serial->NextEventUs() : std::nullopt;
  const std::int64_t now = doors.pump->NowUs();
  for (Timer* timer : TimerTable()) {
    if (IsDue(*timer, now)) return now;
    if (!timer->Enabled || timer->HasWork || timer->Interval <= 0) continue;
    next = std::min(next.value_or(timer->DueUs), timer->DueUs);
  }
  return next;
}

}  // namespace tr7
