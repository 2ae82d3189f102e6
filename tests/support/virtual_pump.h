#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>

#include "platform/event_pump.h"

namespace tr7 {

/// Thrown out of the logic when a run on virtual time does not end: only tests see it.
struct VirtualTimeExceeded : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A clock that jumps to the next due event: a wait takes no real time.
class VirtualPump : public EventPump {
 public:
  std::int64_t NowUs() const override { return now_us_; }
  std::int64_t SleptUs() const override { return slept_us_; }
  /// The computer sleeps, and its clock with it.
  void Sleep(std::int64_t us) { slept_us_ += us; }
  std::string TimeOfDay() const override { return "12:00:00"; }
  std::uint32_t MsOfDay() const override {
    return static_cast<std::uint32_t>(now_us_ / 1000 % 86'400'000);
  }
  std::string Date() const override { return "2024-08-31"; }
  void Run() override;

  /// Runs `what` when the clock reaches `at_us`, as a user's act would come: from inside a pump.
  void At(std::int64_t at_us, std::function<void()> what);
  void After(std::int64_t delay_us, std::function<void()> what) { At(now_us_ + delay_us, what); }
  /// Pumps for a stretch of virtual time.
  void RunFor(std::int64_t us);
  /// The clock may not pass this; a flow that never ends is thrown out of.
  void SetLimit(std::int64_t us) { limit_us_ = us; }

 private:
  bool RunActs();
  std::int64_t now_us_ = 1'000'000;
  std::int64_t slept_us_ = 0;
  std::int64_t limit_us_ = std::int64_t{24} * 3600 * 1'000'000;
  std::multimap<std::int64_t, std::function<void()>> acts_;
};

}  // namespace tr7
