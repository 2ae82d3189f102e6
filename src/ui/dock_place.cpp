#include "ui/dock_place.h"

#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QScreen>
#include <QTimer>
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
  const QScreen* screen = QApplication::screenAt(place.center());
  if (!screen) screen = QApplication::primaryScreen();
  return Inside(place, screen->availableGeometry());
}

}  // namespace

DockPlace::DockPlace(QMainWindow& frame, QDockWidget& dock, std::string key)
    : frame_(frame), dock_(dock), key_(std::move(key)) {
  WindowState.NotePart = [this] { Note(); };
  dock.installEventFilter(this);
  frame.installEventFilter(this);
  QObject::connect(&dock, &QDockWidget::topLevelChanged, this, [this](bool floats) {
    // Pulled out, it hangs at the mouse; from then on it keeps its place by itself.
    const bool pulled = !twice_ && QApplication::mouseButtons().testFlag(Qt::LeftButton);
    if (floats && !has_floated_ && !pulled) PutFloating();
    has_floated_ = has_floated_ || floats;
  });
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
  const bool shown = last[kShown] != 0;
  if (last[kFloats] != 0) {
    dock_.setFloating(true);
    PutFloating();  // once more: the toolkit leaves the first place of a hidden window open
    comes_after_frame_ = shown && !frame_.isVisible();
  }
  dock_.setVisible(shown && !comes_after_frame_);
  if (last[kHeight] < kSmallest) return;
  height_ = last[kHeight];
  frame_.resizeDocks({&dock_}, {height_}, Qt::Vertical);
}

/// Where it last floated; at first beside the frame, or where there is no room over the right top
/// of its views, so that the buttons at the left, the red Stop above and the frame's foot stay
/// free.
void DockPlace::PutFloating() {
  if (floating_.isValid()) return dock_.setGeometry(OnScreen(floating_));
  const QRect frame = frame_.frameGeometry(), screen = frame_.screen()->availableGeometry();
  QRect place(frame.topLeft(), dock_.sizeHint());
  if (screen.right() - frame.right() >= place.width()) {
    place.moveLeft(frame.right() + 1);
  } else if (frame.left() - screen.left() >= place.width()) {
    place.moveRight(frame.left() - 1);
  } else {
    const QWidget* views = frame_.findChild<QMdiArea*>();
    if (!views) views = &frame_;
    place.moveTopRight(views->mapToGlobal(views->rect().topRight()));
  }
  dock_.setGeometry(Inside(place, screen));
}

/// A window that is there before the frame lies behind it. The keys stay with the frame, and what
/// is asked stays in front.
void DockPlace::FollowFrame() {
  if (!comes_after_frame_) return;
  comes_after_frame_ = false;
  dock_.setAttribute(Qt::WA_ShowWithoutActivating);
  dock_.show();
  dock_.setAttribute(Qt::WA_ShowWithoutActivating, false);
  dock_.raise();
  if (QWidget* modal = QApplication::activeModalWidget()) modal->raise();
}

bool DockPlace::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (watched == &frame_) {
    if (type == QEvent::Show) QTimer::singleShot(0, this, &DockPlace::FollowFrame);
  } else if (type == QEvent::MouseButtonDblClick) {
    twice_ = true;
  } else if (type == QEvent::MouseButtonPress) {
    twice_ = false;
  } else if (dock_.isVisible() && dock_.isFloating()) {
    if (type == QEvent::Move || type == QEvent::Resize) floating_ = dock_.geometry();
  } else if (dock_.isVisible() && type == QEvent::Resize) {
    height_ = dock_.height();
  }
  return QObject::eventFilter(watched, event);
}

void DockPlace::Note() {
  const bool floats = dock_.isFloating(), shown = comes_after_frame_ || !dock_.isHidden();
  if (floats) floating_ = dock_.geometry();
  const bool at_top = frame_.dockWidgetArea(&dock_) == Qt::TopDockWidgetArea;
  NoteNumbers(key_, {shown, floats, at_top, height_, floating_.left(), floating_.top(),
                     floating_.width(), floating_.height()});
}

}  // namespace tr7
