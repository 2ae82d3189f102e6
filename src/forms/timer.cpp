#include "forms/timer.h"

#include <algorithm>

namespace tr7 {
namespace {

std::vector<Timer*>& Table() {
  static std::vector<Timer*> table;
  return table;
}

}  // namespace

Timer::Timer(int interval_ms, bool enabled) : Interval(interval_ms), Enabled(enabled) {
  Table().push_back(this);
}

Timer::~Timer() { std::erase(Table(), this); }

void Timer::Start(int interval_ms) {
  Interval = interval_ms;
  Enabled = true;
  DueUs = kNotArmed;
}

const std::vector<Timer*>& TimerTable() { return Table(); }

}  // namespace tr7
