#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>
#include <QWindow>

#include "forms/control.h"
#include "forms/hold_button.h"
#include "ui/qt_form_host.h"
#include "ui/windows.h"

// What is drawn of the records, and when.

namespace tr7 {
namespace {

/// Records that change all the time are drawn this often.
constexpr std::int64_t kPushEveryUs = 100'000;
/// And views that nobody sees, this often.
constexpr std::int64_t kPushCoveredEveryUs = 500'000;
/// How long a picture may take to get to the screen before the start goes on without it.
constexpr std::int64_t kExposeUs = 200'000;

}  // namespace

BoundView* QtFormHost::Find(const View& view) const {
  const auto found = shown_.find(&view);
  return found == shown_.end() ? nullptr : found->second.bound.get();
}

QWidget* QtFormHost::WidgetOf(const Control& control) const {
  const BoundView* bound = Find(*control.Owner);
  return bound ? bound->WidgetOf(control) : nullptr;
}

/// Behind a view that fills the frame nobody sees it.
bool QtFormHost::IsCovered(const QWidget& window) const {
  const QMdiSubWindow* front = mdi_ ? mdi_->activeSubWindow() : nullptr;
  return front && front != &window && front->isMaximized() &&
         qobject_cast<const ChildWindow*>(&window);
}

void QtFormHost::Push() { PushViews(true); }

void QtFormHost::PushViews(bool covered_ones_too) {
  if (pushing_ || ended_) return;
  pushing_ = true;
  bool left_out = false;
  for (const auto& [view, shown] : shown_) {
    if (!covered_ones_too && IsCovered(*shown.window)) {
      left_out = true;
    } else {
      shown.bound->Push();
    }
  }
  pushing_ = false;
  // Not in here: what the focus leaves may have a handler, and that may wait.
  if (MayGiveFocus()) QTimer::singleShot(0, wants_focus_, [this] { GiveFocus(); });
  last_push_us_ = pump_.NowUs();
  if (!left_out) last_full_push_us_ = last_push_us_;
}

void QtFormHost::PushOne(BoundView& bound) {
  if (pushing_ || ended_) return;
  pushing_ = true;
  bound.Push();
  pushing_ = false;
}

/// Before the loop sleeps: what handlers and ticks have changed is drawn, not more often than an
/// eye can follow, and what nobody sees more seldom. A button that can be held no longer is let go
/// of at once.
std::optional<std::int64_t> QtFormHost::PushWhenDue() {
  LetGoOfLostButton();
  if (pushing_ || ended_) return std::nullopt;
  const std::int64_t now = pump_.NowUs();
  if (now - last_push_us_ < kPushEveryUs) return last_push_us_ + kPushEveryUs;
  PushViews(now - last_full_push_us_ >= kPushCoveredEveryUs);
  if (last_full_push_us_ == last_push_us_) return std::nullopt;
  return last_full_push_us_ + kPushCoveredEveryUs;
}

void QtFormHost::PaintNow() {
  for (const auto& [view, shown] : shown_) {
    if (shown.window->isVisible()) shown.window->repaint();
  }
}

/// A window that has just come up is waited for until it is exposed, with the timers held.
void QtFormHost::Refresh() {
  Push();
  const QtPump::HoldTimers hold(pump_);
  const std::int64_t until = pump_.NowUs() + kExposeUs;
  const auto all_exposed = [this] {
    for (const auto& [view, shown] : shown_) {
      const QWindow* handle = shown.window->windowHandle();
      if (shown.window->isVisible() && handle && !handle->isExposed()) return false;
    }
    return true;
  };
  while (!all_exposed() && pump_.NowUs() < until) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 5);
  }
  PaintNow();
}

}  // namespace tr7
