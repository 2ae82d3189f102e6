#include "ui/dialog_room.h"

#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace tr7 {
namespace {

constexpr const char* kFolded = "areaFolded";

}  // namespace

QScrollArea* InScrollArea(QWidget& view) {
  auto* scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(&view);
  return scroll;
}

QSize RoomForDialog(const QWidget& window) {
  return window.screen()->availableSize() - QSize(20, 60);
}

void FoldDialog(QWidget& window) {
  if (window.findChild<QWidget*>(kFolded)) return;
  const QSize asked = window.sizeHint(), room = RoomForDialog(window);
  if (asked.width() <= room.width() && asked.height() <= room.height()) return;
  auto* content = new QWidget(&window);
  content->setObjectName(kFolded);
  content->setLayout(window.layout());  // takes the widgets along
  window.setMinimumSize(0, 0);          // the layout may have fixed both
  window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  auto* outer = new QVBoxLayout(&window);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->addWidget(InScrollArea(*content));
  const int bar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  window.resize((asked + QSize(bar, bar)).boundedTo(room));
}

void PlaceDialog(QWidget& window) {
  const int bar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QRect field = window.screen()->availableGeometry().adjusted(0, bar, 0, 0);
  const QWidget* over = window.parentWidget() ? window.parentWidget()->window() : nullptr;
  QRect place(QPoint(), window.size());
  place.moveCenter(over && over->isVisible() ? over->geometry().center() : field.center());
  place.moveBottomRight(
      {std::min(place.right(), field.right()), std::min(place.bottom(), field.bottom())});
  place.moveTopLeft({std::max(place.left(), field.left()), std::max(place.top(), field.top())});
  window.move(place.topLeft());
}

}  // namespace tr7
