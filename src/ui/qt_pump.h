#pragma once

#include <QObject>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <optional>

#include "platform/event_pump.h"

namespace tr7 {

/// The pump on Qt's event loop. `Run` sleeps in the loop until a timer is due, a byte has arrived
/// or the user does something. Outside of `Run`, under any event loop of Qt's, one armed timer
/// wakes it for what is next due: the logic's timers tick whoever drives the loop.
class QtPump : public QObject, public EventPump {
 public:
  QtPump();

  std::int64_t NowUs() const override;
  std::int64_t SleptUs() const override;
  std::string TimeOfDay() const override;
  std::uint32_t MsOfDay() const override;
  std::string Date() const override;
  void Run() override;

  /// Called before the loop sleeps; gives the time at which it wants to be called again.
  std::function<std::optional<std::int64_t>()> before_sleep;

  /// While one lives, events are served and timers wait: for painting between two steps.
  class HoldTimers {
   public:
    explicit HoldTimers(QtPump& pump) : pump_(pump) { ++pump_.holds_; }
    ~HoldTimers() { --pump_.holds_; }
    HoldTimers(const HoldTimers&) = delete;
    HoldTimers& operator=(const HoldTimers&) = delete;

   private:
    QtPump& pump_;
  };

  /// How often the loop has gone to sleep: a tool that is idle hardly ever wakes.
  std::uint64_t sleeps = 0;

 private:
  void Arm();
  void LetEventsIn();

  QTimer wake_;
  std::int64_t armed_us_ = 0;
  std::int64_t last_events_us_ = 0;
  int holds_ = 0;
  mutable qint64 quarter_ = -1;  ///< of an hour, since 1970, for which the next one holds
  mutable qint64 zone_ms_ = 0;   ///< local time less UTC
};

}  // namespace tr7
