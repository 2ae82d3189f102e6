#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "forms/handler.h"

namespace tr7 {

/// A periodic tick, served by the event pump on the one thread. A handler never blocks
/// except in a pumped wait, and a one-shot timer stops itself in its tick.
///
/// A timer with `HasWork` is served at once whenever that says so, and costs no wake-up
/// while it does not; its interval is then only the bound of the design it stands for. One whose
/// question costs something is asked it at rest and every `AskEveryMs` at most.
struct Timer {
  explicit Timer(int interval_ms = 0, bool enabled = false);
  ~Timer();
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  /// Enables the timer with this interval (ms, above 0) counted from now.
  void Start(int interval_ms);
  /// Enables the timer with the interval that it has, counted from now.
  void Start() { Start(Interval); }
  void Stop() { Enabled = false; }

  int Interval;  ///< ms; 0 never ticks
  bool Enabled;
  Handler<void()> Tick;
  std::function<bool()> HasWork;  ///< a question, no handler: it changes nothing
  int AskEveryMs = 0;             ///< 0: whenever the pump turns

  // Kept by the pump.
  std::int64_t DueUs = kNotArmed;
  std::int64_t AskedUs = kNotArmed;
  bool Wanted = false;  ///< the answer of a question that is asked now and then
  static constexpr std::int64_t kNotArmed = -1;
};

/// Every living timer in order of construction, which is the order in which ticks are served.
const std::vector<Timer*>& TimerTable();

}  // namespace tr7
