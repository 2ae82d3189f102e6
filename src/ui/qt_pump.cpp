#include "ui/qt_pump.h"

#include <QAbstractEventDispatcher>
#include <QDateTime>
#include <QTime>
#include <algorithm>
#include <chrono>
#include <ctime>

#include "platform/due_timers.h"

namespace tr7 {
namespace {

/// Ticks that follow one another without a pause let the user in this often.
constexpr std::int64_t kEventsEveryUs = 10'000;
/// A drawing waits this long for a wake-up that comes anyway.
constexpr std::int64_t kDrawingWaitsUs = 50'000;
/// Longest sleep that the armed timer is set for.
constexpr std::int64_t kLongestSleepMs = 3'600'000;

#ifdef CLOCK_BOOTTIME
std::int64_t ClockUs(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return std::int64_t{now.tv_sec} * 1'000'000 + now.tv_nsec / 1000;
}
#endif

}  // namespace

QtPump::QtPump() {
  wake_.setSingleShot(true);
  wake_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&wake_, &QTimer::timeout, this, [this] {
    if (holds_ == 0) ServeDueTimers();
  });
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   this, &QtPump::Arm);
}

std::int64_t QtPump::NowUs() const {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

std::int64_t QtPump::SleptUs() const {
#ifdef CLOCK_BOOTTIME
  const std::int64_t awake_us = ClockUs(CLOCK_MONOTONIC);
  return ClockUs(CLOCK_BOOTTIME) - awake_us;
#else
  return 0;  // this system's clocks do not tell
#endif
}

std::string QtPump::TimeOfDay() const {
  return QTime::currentTime().toString(QStringLiteral("HH:mm:ss")).toStdString();
}

/// Every frame on the line is stamped, and the system takes its time to tell the zone; no zone
/// changes its clock but at a quarter of an hour.
std::uint32_t QtPump::MsOfDay() const {
  constexpr qint64 kQuarterMs = 15 * 60'000, kDayMs = 24 * 60 * 60'000;
  const qint64 now_ms = QDateTime::currentMSecsSinceEpoch();
  if (quarter_ != now_ms / kQuarterMs) {
    quarter_ = now_ms / kQuarterMs;
    zone_ms_ = QDateTime::currentDateTime().offsetFromUtc() * qint64{1000};
  }
  return static_cast<std::uint32_t>((now_ms + zone_ms_ + kDayMs) % kDayMs);
}

std::string QtPump::Date() const {
  return QDate::currentDate().toString(Qt::ISODate).toStdString();
}

void QtPump::Arm() {
  ++sleeps;
  const auto drawing = before_sleep ? before_sleep() : std::nullopt;
  std::optional<std::int64_t> due = holds_ == 0 ? NextDueUs() : std::nullopt;
  if (drawing && (!due || *due > *drawing + kDrawingWaitsUs)) due = drawing;
  if (!due) {
    wake_.stop();
    return;
  }
  if (wake_.isActive() && armed_us_ == *due) return;
  armed_us_ = *due;
  const std::int64_t wait_ms = (std::max<std::int64_t>(*due - NowUs(), 0) + 999) / 1000;
  wake_.start(static_cast<int>(std::min(wait_ms, kLongestSleepMs)));
}

void QtPump::LetEventsIn() {
  if (NowUs() - last_events_us_ < kEventsEveryUs) return;
  last_events_us_ = NowUs();
  if (before_sleep) before_sleep();
  QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
}

void QtPump::Run() {
  if (holds_ == 0 && ServeDueTimers()) {
    LetEventsIn();
    return;
  }
  QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents |
                                                      QEventLoop::WaitForMoreEvents);
  last_events_us_ = NowUs();
}

}  // namespace tr7
