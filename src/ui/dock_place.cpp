#include "ui/dock_place.h"

#include <QDockWidget>
#include <QEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <utility>
#include <vector>

#include "core/window_state.h"
#include "ui/on_screen.h"

namespace tr7 {
namespace {

/// The numbers of a place, in their order.
enum Number : std::size_t { kShown, kFloats, kAtTop, kHeight, kLeft, kTop, kWidth, kDepth, kCount };
constexpr int kFarthest = 32767, kSmallest = 40;

QRect OnScreen(const QRect& place) {
  const QScreen* screen = QGuiApplication::screenAt(place.center());
  if (!screen) screen = QGuiApplication::primaryScreen();
  return Inside(place, screen->availableGeometry());
}

}  // namespace

DockPlace::DockPlace(QMainWindow& frame, QDockWidget& dock, std::string key)
    : frame_(frame), dock_(dock), key_(std::move(key)) {
  WindowState.NotePart = [this] { Note(); };
  dock.installEventFilter(this);
}

DockPlace::~DockPlace() { WindowState.NotePart = nullptr; }

void DockPlace::Take() {
  const std::vector<int> last = RecallNumbers(key_, -kFarthest, kFarthest);
  const bool known = last.size() == kCount;
  const bool at_top = known && last[kAtTop] != 0;
  frame_.addDockWidget(at_top ? Qt::TopDockWidgetArea : Qt::BottomDockWidgetArea, &dock_);
  if (!known) return;
  if (last[kWidth] >= kSmallest && last[kDepth] >= kSmallest) {
    floating_ = QRect(last[kLeft], last[kTop], last[kWidth], last[kDepth]);
  }
  if (last[kFloats] != 0) {
    dock_.setFloating(true);
    if (floating_.isValid()) dock_.setGeometry(OnScreen(floating_));
  }
  dock_.setVisible(last[kShown] != 0);
  if (last[kHeight] < kSmallest) return;
  height_ = last[kHeight];
  frame_.resizeDocks({&dock_}, {height_}, Qt::Vertical);
}

bool DockPlace::eventFilter(QObject* watched, QEvent* event) {
  const bool resized = watched == &dock_ && event->type() == QEvent::Resize;
  if (resized && dock_.isVisible() && !dock_.isFloating()) height_ = dock_.height();
  return QObject::eventFilter(watched, event);
}

void DockPlace::Note() {
  const bool floats = dock_.isFloating(), shown = !dock_.isHidden();
  if (floats) floating_ = dock_.geometry();
  const bool at_top = frame_.dockWidgetArea(&dock_) == Qt::TopDockWidgetArea;
  NoteNumbers(key_, {shown, floats, at_top, height_, floating_.left(), floating_.top(),
                     floating_.width(), floating_.height()});
}

}  // namespace tr7
