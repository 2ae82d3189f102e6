#pragma once

#include <QApplication>
#include <QImage>
#include <QPoint>
#include <QString>
#include <QWidget>

namespace tr7::tour {

// What a user sees and does on the screen. Everything here runs in the tool's thread, and events
// take the way of real ones: through the window, so that a dialogue in front keeps them off.

/// Empty when a click at `at` (of the widget) reaches it; else what is in the way.
QString WhyNotReachable(const QWidget& widget, const QPoint& at);
void ClickAt(QWidget& widget, const QPoint& at);
/// The left button goes down there, or comes up.
void PressAt(QWidget& widget, const QPoint& at, bool down);

/// To the widget that has the focus, or to the popup that is open.
void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers);
void TypeText(const QString& text);

/// What a label, button, field, list or box says; of all others, the window's title.
QString ShownText(const QWidget& widget);

/// The dialogue in front of all others when it is of this kind, or null.
template <typename Kind = QWidget>
Kind* FrontDialog() {
  auto* modal = qobject_cast<Kind*>(QApplication::activeModalWidget());
  return modal && modal->isVisible() ? modal : nullptr;
}

/// The whole screen as it stands. Where no window manager draws them, dialogues and the frame get
/// their titles and borders in the picture.
QImage GrabScreen();

}  // namespace tr7::tour
