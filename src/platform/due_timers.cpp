#include "platform/due_timers.h"

#include <algorithm>

#include "forms/timer.h"
#include "platform/doors.h"

namespace tr7 {
namespace {

/// A question that is asked now and then waits this long for a sleep that comes anyway.
constexpr std::int64_t kQuestionWaitsUs = 50'000;

/// Ahead of a sleep; the latest time of the next question where it is too early for one.
std::optional<std::int64_t> AskNowAndThen(Timer& timer, std::int64_t now) {
  if (!timer.Enabled) return std::nullopt;
  if (timer.Wanted) return now;
  const std::int64_t next = timer.AskedUs + std::int64_t{timer.AskEveryMs} * 1000;
  if (timer.AskedUs != Timer::kNotArmed && now < next) return next + kQuestionWaitsUs;
  timer.AskedUs = now;
  timer.Wanted = timer.HasWork();
  return timer.Wanted ? std::optional(now) : std::nullopt;
}

bool IsDue(Timer& timer, std::int64_t now) {
  if (!timer.Enabled) return false;
  if (timer.HasWork) {
    // What was found ahead of the sleep may hold no more: an event has come in between.
    return (timer.AskEveryMs == 0 || timer.Wanted) && timer.HasWork();
  }
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
    timer.Wanted = false;
    served = true;
    if (timer.Tick) timer.Tick();
  }
  return served;
}

std::optional<std::int64_t> NextDueUs() {
  std::optional<std::int64_t> next = doors.serial ? doors.serial->NextEventUs() : std::nullopt;
  const std::int64_t now = doors.pump->NowUs();
  for (Timer* timer : TimerTable()) {
    if (timer->HasWork && timer->AskEveryMs > 0) {
      const auto asked = AskNowAndThen(*timer, now);
      if (asked == now) return now;
      if (asked) next = std::min(next.value_or(*asked), *asked);
      continue;
    }
    if (IsDue(*timer, now)) return now;
    if (!timer->Enabled || timer->HasWork || timer->Interval <= 0) continue;
    next = std::min(next.value_or(timer->DueUs), timer->DueUs);
  }
  return next;
}

}  // namespace tr7
