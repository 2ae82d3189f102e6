#include "platform/event_pump.h"

#include <algorithm>

#include "platform/doors.h"
#include "platform/timer.h"

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

bool EventPump::ServeDueTimers() {
  bool served = false;
  for (std::size_t i = 0; i < TimerTable().size(); ++i) {
    Timer& timer = *TimerTable()[i];
    if (!IsDue(timer, NowUs())) continue;
    timer.DueUs = Timer::kNotArmed;
    served = true;
    if (timer.Tick) timer.Tick();
  }
  return served;
}

std::optional<std::int64_t> EventPump::NextDueUs() const {
  std::optional<std::int64_t> next = doors.serial ? doors.serial->NextEventUs() : std::nullopt;
  const std::int64_t now = NowUs();
  for (Timer* timer : TimerTable()) {
    if (IsDue(*timer, now)) return now;
    if (!timer->Enabled || timer->HasWork || timer->Interval <= 0) continue;
    next = std::min(next.value_or(timer->DueUs), timer->DueUs);
  }
  return next;
}

void Pump() { doors.pump->Run(); }

}  // namespace tr7
