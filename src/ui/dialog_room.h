#pragma once

#include <QScrollArea>
#include <QSize>
#include <QWidget>

namespace tr7 {

/// A view that has less room than it needs scrolls.
QScrollArea* InScrollArea(QWidget& view);

/// The most that a dialogue takes of its screen, beside what the window system puts around it.
QSize RoomForDialog(const QWidget& window);

/// A dialogue whose layout asks for more than the screen has: its content moves into a scroll area.
void FoldDialog(QWidget& window);

/// Over the middle of the window that it belongs to, within the screen.
void PlaceDialog(QWidget& window);

}  // namespace tr7
