#include "ui/windows.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <algorithm>

#include "forms/control.h"
#include "platform/doors.h"
#include "state/views.h"
#include "ui/on_screen.h"
#include "ui/twips.h"

namespace tr7 {
namespace {

constexpr int kFrameKnownMs = 150;

/// The button that Escape presses, when it can be pressed.
CommandButton* CancelButton(const View& view) {
  for (Control* control : view.Controls) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button && button->Cancel && button->Enabled && button->Visible) return button;
  }
  return nullptr;
}

bool HasDefaultButton(const View& view) {
  return std::any_of(view.Controls.begin(), view.Controls.end(), [](const Control* control) {
    const auto* button = dynamic_cast<const CommandButton*>(control);
    return button && button->Default;
  });
}

/// The user asks to close a view. The window stays until the record's close takes it away.
void AskToClose(View& view, QCloseEvent& event, const CommandGate& gate) {
  event.ignore();
  if (!gate()) return;
  if (view.RefuseClose) {
    doors.forms->Beep();
  } else if (view.Visible) {
    CloseView(view, CloseReason::ControlMenu);
  }
}

QRect PlaceOf(const View& view) {
  return {Pixels(view.Left), Pixels(view.Top), Pixels(view.Width), Pixels(view.Height)};
}

void PutPlace(const QRect& place, View& view) {
  view.Left = Twips(place.left());
  view.Top = Twips(place.top());
  view.Width = Twips(place.width());
  view.Height = Twips(place.height());
}

}  // namespace

void FrameWindow::PlaceByRecord() {
  const QRect wanted = PlaceOf(view_);
  const QScreen* screen = QGuiApplication::screenAt(wanted.center());
  if (!screen) screen = QGuiApplication::primaryScreen();
  // The window's own bar stands above the rectangle.
  const int bar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
  setGeometry(Inside(wanted, screen->availableGeometry().adjusted(0, bar, 0, 0)));
}

void FrameWindow::ShowByRecord() {
  PlaceByRecord();
  view_.Maximised ? showMaximized() : show();
  // What the window system has put around the window is known only now.
  QTimer::singleShot(kFrameKnownMs, this, &FrameWindow::KeepOnScreen);
}

/// A window whose edges stand beyond the screen's moves in, and shrinks where that is not enough.
void FrameWindow::KeepOnScreen() {
  if (!isVisible() || windowState() != Qt::WindowNoState) return;
  const QRect outer = frameGeometry(), inner = geometry();
  const QRect place = Inside(outer, screen()->availableGeometry());
  if (place == outer) return;
  setGeometry(place.adjusted(inner.left() - outer.left(), inner.top() - outer.top(),
                             inner.right() - outer.right(), inner.bottom() - outer.bottom()));
}

void FrameWindow::KeepRectangle() {
  if (isMaximized()) FollowScreen();
  if (!isVisible() || isMinimized() || isMaximized() || isFullScreen()) return;
  PutPlace(geometry(), view_);
}

/// A window that fills another screen than it came from comes back to that one.
void FrameWindow::FollowScreen() {
  QRect place = PlaceOf(view_);
  const QRect field = screen()->availableGeometry();
  if (!isVisible() || field.contains(place.center())) return;
  place.moveCenter(field.center());
  PutPlace(place, view_);
}

void FrameWindow::closeEvent(QCloseEvent* event) { AskToClose(view_, *event, gate_); }

void FrameWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  KeepRectangle();
}

void FrameWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  KeepRectangle();
}

void FrameWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  view_.Minimised = isMinimized();
  if (!view_.Minimised) view_.Maximised = isMaximized();
}

void ChildWindow::PlaceByRecord(const QSize& room) {
  QRect place = PlaceOf(view_);
  place.setSize(place.size().boundedTo(room));
  place.moveTo(std::clamp(place.left(), 0, room.width() - place.width()),
               std::clamp(place.top(), 0, room.height() - place.height()));
  setGeometry(place);
}

void ChildWindow::KeepRectangle() {
  if (!isVisible() || isMinimized() || isMaximized()) return;
  PutPlace(geometry(), view_);
  view_.Placed = true;
}

void ChildWindow::closeEvent(QCloseEvent* event) { AskToClose(view_, *event, gate_); }

void ChildWindow::moveEvent(QMoveEvent* event) {
  QMdiSubWindow::moveEvent(event);
  KeepRectangle();
}

void ChildWindow::resizeEvent(QResizeEvent* event) {
  QMdiSubWindow::resizeEvent(event);
  KeepRectangle();
}

void ChildWindow::changeEvent(QEvent* event) {
  QMdiSubWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && isVisible()) view_.Maximised = isMaximized();
}

DialogWindow::DialogWindow(View& view, QWidget* parent) : QDialog(parent), view_(view) {
  Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
  if (!view.RefuseClose) flags |= Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint;
  setWindowFlags(flags);
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  AskToClose(view_, *event, [] { return true; });
}

/// A key that the control with the focus has left alone.
void DialogWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !HasDefaultButton(view_)) {
    event->ignore();
  } else {
    QDialog::keyPressEvent(event);
  }
}

/// Escape.
void DialogWindow::reject() {
  if (CommandButton* button = CancelButton(view_)) {
    button->Press();
  } else if (!view_.RefuseClose && view_.Visible) {
    CloseView(view_, CloseReason::ControlMenu);
  }
}

SplashWindow::SplashWindow(View& view) : view_(view) {
  setWindowFlags(Qt::SplashScreen | Qt::WindowStaysOnTopHint);
}

void SplashWindow::mousePressEvent(QMouseEvent*) {
  if (view_.Dismiss) view_.Dismiss();
}

void SplashWindow::keyPressEvent(QKeyEvent*) {
  if (view_.Dismiss) view_.Dismiss();
}

void SplashWindow::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace tr7
