// The picture of the whole screen.

#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "tests/tour/screen.h"
#include "ui/look.h"

namespace tr7::tour {
namespace {

constexpr int kTitleHeight = 26;

bool WantsTitle(const QWidget& window) {
  const Qt::WindowType kind =
      static_cast<Qt::WindowType>(int(window.windowFlags() & Qt::WindowType_Mask));
  const bool framed = kind == Qt::Window || kind == Qt::Dialog;
  return framed && window.isVisible() && window.frameGeometry() == window.geometry();
}

int Depth(const QWidget* window) {
  int depth = 0;
  while ((window = window->parentWidget())) ++depth;
  return depth;
}

/// From back to front: a dialogue stands before the window that it was opened over.
QWidgetList WindowsWithoutTitle() {
  QWidgetList windows = QApplication::topLevelWidgets();
  windows.removeIf([](const QWidget* window) { return !WantsTitle(*window); });
  std::stable_sort(windows.begin(), windows.end(),
                   [](const QWidget* a, const QWidget* b) { return Depth(a) < Depth(b); });
  return windows;
}

void DrawTitle(QPainter& painter, const QWidget& window, bool active) {
  const QRect inside = window.geometry();
  const QRect bar(inside.left() - 1, inside.top() - kTitleHeight, inside.width() + 2, kTitleHeight);
  painter.fillRect(bar, active ? QColor(0x2f, 0x48, 0x60) : QColor(0x7d, 0x8b, 0x99));
  painter.setPen(QColor(0x2f, 0x48, 0x60));
  painter.drawRect(
      QRect(bar.topLeft(), inside.bottomRight() + QPoint(1, 1)).adjusted(0, 0, -1, -1));
  painter.setPen(Qt::white);
  QFont font = QApplication::font();
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(bar.adjusted(10, 0, -10, 0), Qt::AlignVCenter | Qt::AlignLeft,
                   window.windowTitle());
}

}  // namespace

QImage GrabScreen() {
  QScreen* screen = QGuiApplication::primaryScreen();
  QPixmap picture = screen->grabWindow(0);
  picture.setDevicePixelRatio(screen->devicePixelRatio());
  QPainter painter(&picture);
  const QWidgetList windows = WindowsWithoutTitle();
  for (qsizetype i = 0; i < windows.size(); ++i) {
    // A window further in front stands over the title of one behind it.
    QRegion seen(screen->geometry());
    for (qsizetype above = i + 1; above < windows.size(); ++above) {
      seen -= windows[above]->geometry();
    }
    painter.setClipRegion(seen);
    DrawTitle(painter, *windows[i], i + 1 == windows.size());
  }
  painter.end();
  return picture.toImage();
}

}  // namespace tr7::tour
