#pragma once

#include <cstdint>
#include <string>

namespace tr7 {

/// The door to time and to the event queue. One thread: everything that happens, happens in a
/// tick or a user event that the pump serves. `Run` may be called from any handler, so a handler
/// may re-enter every routine that is not guarded.
class EventPump {
 public:
  virtual ~EventPump() = default;

  /// Monotonic clock, microseconds.
  virtual std::int64_t NowUs() const = 0;

  /// How long the system has been asleep since it was started, microseconds. `NowUs` stands still
  /// meanwhile, so nothing else tells of it.
  virtual std::int64_t SleptUs() const = 0;

  /// The local time of day for the user to read: "16:05:33".
  virtual std::string TimeOfDay() const = 0;
  /// The same in milliseconds since midnight.
  virtual std::uint32_t MsOfDay() const = 0;
  /// The local date: "2024-08-31".
  virtual std::string Date() const = 0;

  /// Serves what is due. When nothing is, sleeps until something is, and serves that.
  virtual void Run() = 0;
};

}  // namespace tr7
